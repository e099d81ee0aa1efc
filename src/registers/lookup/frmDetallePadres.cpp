#include "registers/lookup/frmDetallePadres.h"

#include <stdexcept>

#include "core/dialogs/Guard.h"
#include "registers/baptism/TablasBautismo.h"

namespace fidaleon {

using FDAPI::cCOrigen;

namespace {

struct FormaDetalle {
  cCOrigen origen;
  const char* titulo;
  std::array<const char*, frmDetallePadres::LINEAS> etiquetas;
};

constexpr std::array<const char*, frmDetallePadres::LINEAS> DE_FAMILIA{"Padre:",
                                                                       "Madre:",
                                                                       "Abuelos paternos:",
                                                                       "Abuelos maternos:",
                                                                       "Matrimonio:",
                                                                       "Residencia actual:"};

constexpr FormaDetalle FORMAS[] = {
    {cCOrigen::LISTAPARTIDASBAUTISMO, "Detalles de bautismo de un hermano del bautizado.",
     DE_FAMILIA},
    {cCOrigen::SOLICITUDBAUTISMO, "Detalles de la solicitud de bautismo.", DE_FAMILIA},
};

bool enBlanco(const std::string& texto) {
  return texto.empty() || texto == "---";
}

}  // namespace

frmDetallePadres::frmDetallePadres(Contexto& contexto)
    : Dialogo(contexto, "frmDetallePadres"),
      lblDetalle(*this, "lblDetalle"),
      txtDetalle(*this, "txtDetalle"),
      cmdCerrar(*this, "cmdCerrar", "&Cerrar") {
  forms::Nodes lineas;
  for (int i = 0; i < LINEAS; ++i) {
    lblDetalle.add(i);
    forms::TextBox& linea = txtDetalle.add(i);
    linea.setLabel(lblDetalle[i]);
    linea.setLocked(true);
    linea.setWidthChars(80);
    linea.setLines(2);
    lineas.push_back(forms::item(linea));
  }
  cmdCerrar.setCancel(true);
  cmdCerrar.setDefault(true);
  cmdCerrar.onClick = [this] { Unload(); };
  setDisposable();
  setLayout(forms::column({forms::fields(1, std::move(lineas)), forms::buttons({&cmdCerrar})}));
}

void frmDetallePadres::Form_Load() {
  const bool cargado = procedimiento("CargarDetalleBautismo", [this] {
    for (const FormaDetalle& forma : FORMAS) {
      if (forma.origen != Origen) continue;
      setCaption(forma.titulo);
      for (int i = 0; i < LINEAS; ++i) lblDetalle[i].setCaption(forma.etiquetas[i]);
    }
    CargarDetalleBautismo();
  });
  if (!cargado) Unload();
}

void frmDetallePadres::CargarDetalleBautismo() {
  const store::Recordset fila = conBaseDatos->Execute(sqlPartidaBautismo(lngID));
  if (fila.EOF_()) throw std::runtime_error("Esta partida ya no existe.");
  cBautismo b;
  copiarPartidaBautismo(fila, b);
  const auto persona = [&](const std::string& nombre, const std::string& apellido1,
                           const std::string& apellido2, std::int32_t municipio) {
    return naturalDe(nombre + " " + apellido1 + " " + apellido2, municipio);
  };
  const auto abuelos = [&](const std::string& abuelo, std::int32_t municipioAbuelo,
                           const std::string& abuela, std::int32_t municipioAbuela) {
    return naturalDe(abuelo, municipioAbuelo) + " y " + naturalDe(abuela, municipioAbuela);
  };
  const auto en = [&](const std::string& texto, std::int32_t municipio) {
    const std::string donde = lugar(municipio);
    return donde.empty() ? texto : texto + ", " + donde;
  };
  txtDetalle[0].setText(persona(b.NombrePadres, b.PrimerApellidoPadres, b.SegundoApellidoPadres,
                                b.CodPoblacionPadres));
  txtDetalle[1].setText(persona(b.NombreMadres, b.PrimerApellidoMadres, b.SegundoApellidoMadres,
                                b.CodPoblacionMadres));
  txtDetalle[2].setText(abuelos(b.AbueloPadres, b.CodPoblacionAbueloPadres, b.AbuelaPadres,
                                b.CodPoblacionAbuelaPadres));
  txtDetalle[3].setText(abuelos(b.AbueloMadres, b.CodPoblacionAbueloMadres, b.AbuelaMadres,
                                b.CodPoblacionAbuelaMadres));
  std::string fecha = b.FechaMatrMatrimonio;
  if (!enBlanco(fecha)) fecha = contexto_.fidaleon()->stringdate(fecha);
  txtDetalle[4].setText("Se casaron el día " + fecha + " en " +
                        en(b.ParroquiaMatrimonio, b.CodPoblacionMatrMatrimonio));
  txtDetalle[5].setText(en(b.DireccionPadresMatrimonio, b.CodPoblacionPadresMatrimonio));
}

std::string frmDetallePadres::lugar(std::int32_t idMunicipio) {
  if (idMunicipio == 0) return {};
  const auto fidaleon = contexto_.fidaleon();
  const std::string poblacion = fidaleon->Poblacion(*conBaseDatos, idMunicipio);
  return poblacion.empty()
             ? std::string()
             : poblacion + " (" + fidaleon->PROVINCIA(*conBaseDatos, idMunicipio) + ")";
}

std::string frmDetallePadres::naturalDe(const std::string& nombre, std::int32_t idMunicipio) {
  const std::string donde = lugar(idMunicipio);
  return donde.empty() ? nombre : nombre + ", natural de " + donde;
}

}  // namespace fidaleon
