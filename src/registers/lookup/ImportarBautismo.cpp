// What a baptism takes over from a brother or sister.

#include <stdexcept>

#include "registers/lookup/frmBuscaPadres.h"

namespace fidaleon {

namespace {

std::int32_t clave(const store::Recordset& fila, const char* columna) {
  return static_cast<std::int32_t>(fila.integer(columna));
}

/// Empty values come as "---".
std::string valor(const store::Recordset& fila, const char* columna) {
  const std::string texto = fila.text(columna);
  return texto.empty() ? "---" : texto;
}

store::Recordset leer(FDAPI::Conexion& conexion, const std::string& sql) {
  store::Recordset fila = conexion.Execute(sql);
  if (fila.EOF_()) throw std::runtime_error("Los datos de esta partida ya no existen.");
  return fila;
}

}  // namespace

void frmBuscaPadres::ImportarDatosBautismo(std::int32_t lngIDBautismo) {
  const store::Recordset enlaces =
      leer(*conBaseDatos,
           "SELECT CodMadres, CodPadres, CodMatrimonio FROM Bautismo WHERE IDBautismo = " +
               std::to_string(lngIDBautismo));
  importado.IDMadres = clave(enlaces, "CodMadres");
  importado.IDPadres = clave(enlaces, "CodPadres");
  importado.IDMatrimonio = clave(enlaces, "CodMatrimonio");

  const std::string persona =
      "SELECT Nombre, PrimerApellido, SegundoApellido, Abuelo, Abuela, CodMunicipio, "
      "CodMunicipioAbuelo, CodMunicipioAbuela FROM ";
  const store::Recordset madre =
      leer(*conBaseDatos,
           persona + "Bautismo_Madres WHERE IDMadres = " + std::to_string(importado.IDMadres));
  importado.NombreMadres = valor(madre, "Nombre");
  importado.PrimerApellidoMadres = valor(madre, "PrimerApellido");
  importado.SegundoApellidoMadres = valor(madre, "SegundoApellido");
  importado.AbueloMadres = valor(madre, "Abuelo");
  importado.AbuelaMadres = valor(madre, "Abuela");
  importado.CodPoblacionMadres = clave(madre, "CodMunicipio");
  importado.CodPoblacionAbueloMadres = clave(madre, "CodMunicipioAbuelo");
  importado.CodPoblacionAbuelaMadres = clave(madre, "CodMunicipioAbuela");

  const store::Recordset padre =
      leer(*conBaseDatos,
           persona + "Bautismo_Padres WHERE IDPadres = " + std::to_string(importado.IDPadres));
  importado.NombrePadres = valor(padre, "Nombre");
  importado.PrimerApellidoPadres = valor(padre, "PrimerApellido");
  importado.SegundoApellidoPadres = valor(padre, "SegundoApellido");
  importado.AbueloPadres = valor(padre, "Abuelo");
  importado.AbuelaPadres = valor(padre, "Abuela");
  importado.CodPoblacionPadres = clave(padre, "CodMunicipio");
  importado.CodPoblacionAbueloPadres = clave(padre, "CodMunicipioAbuelo");
  importado.CodPoblacionAbuelaPadres = clave(padre, "CodMunicipioAbuela");

  const store::Recordset matrimonio = leer(
      *conBaseDatos,
      "SELECT Parroquia, DireccionPadres, CodMunicipioMatr, CodMunicipioPadres, FechaMatr FROM "
      "Bautismo_Matrimonio WHERE IDMatrimonio = " +
          std::to_string(importado.IDMatrimonio));
  importado.ParroquiaMatrimonio = valor(matrimonio, "Parroquia");
  importado.DireccionPadresMatrimonio = valor(matrimonio, "DireccionPadres");
  importado.CodPoblacionMatrMatrimonio = clave(matrimonio, "CodMunicipioMatr");
  importado.CodPoblacionPadresMatrimonio = clave(matrimonio, "CodMunicipioPadres");
  importado.FechaMatrMatrimonio = valor(matrimonio, "FechaMatr");
}

}  // namespace fidaleon
