#include "import/cImportarInpar.h"

#include <filesystem>

#include "core/dialogs/Guard.h"
#include "import/Libros.h"
#include "store/LargeWrite.h"

namespace fidaleon {

namespace {

/// The stage at hand is bold; a late one is moved into sight.
void marcarEtapa(const FDAPI::ColEtiqueta& etiquetas, int etapa) {
  const auto cuantas = static_cast<int>(etiquetas.size());
  const int alto = cuantas > 1 ? etiquetas[1]->Arriba() - etiquetas[0]->Arriba() : 0;
  for (int i = 0; i < cuantas; ++i) {
    FDAPI::cEtiqueta& etiqueta = *etiquetas[static_cast<std::size_t>(i)];
    etiqueta.setNegrita(i + 1 == etapa);
    if (etapa >= 4) etiqueta.setArriba(etiqueta.Arriba() - alto);
  }
}

}  // namespace

void cImportarInpar::registro(const char* procedimiento, const RegistroInpar& registro,
                              const Marco& marco, const std::string& strRuta,
                              const DatosRegistro& datos) {
  resultado_.ensayo = blnEnsayo;
  if (resultado_.cancelada) return;
  RegistroImportado& r = resultado_.registros.emplace_back();
  r.titulo = registro.titulo;
  r.tabla = registro.tabla;
  guarded(contexto_, "cImportarInpar", procedimiento, [&] {
    const forms::Hourglass reloj(contexto_.ui());
    try {
      const Traductor::Reglas reglas{strAno00, bytOrdenNombre, datos};
      TablaInpar tabla(strRuta, registro, strCodigos, [&r](const dbase::Doubt& duda) {
        r.anotar({duda.record, dbase::Doubt{0, duda.column, duda.what}.sentence(), false});
      });
      marcarEtapa(marco.colEtiqueta, registro.etapa);
      const store::LargeWrite mucho(marco.conBaseDatos);
      Libros(avisos_, marco.conBaseDatos, registro, tabla, reglas,
             {marco.lngIDInstitucion, blnEnsayo}, r)
          .importar(marco.abpProgreso);
    } catch (const forms::Cancelled&) {
      resultado_.cancelada = true;
    } catch (const std::exception& error) {
      r.fallo = error.what();
      throw;
    }
  });
}

void cImportarInpar::InparBautismo(const Marco& marco, const std::string& strRuta,
                                   const DatosRegistro& datos) {
  registro("InparBautismo", inparBautismo(), marco, strRuta, datos);
}

void cImportarInpar::InparConfirmacion(const Marco& marco, const std::string& strRuta,
                                       const DatosRegistro& datos) {
  registro("InparConfirmacion", inparConfirmacion(), marco, strRuta, datos);
}

void cImportarInpar::InparMatrimonio(const Marco& marco, const std::string& strRuta,
                                     const DatosRegistro& datos) {
  registro("InparMatrimonio", inparMatrimonio(), marco, strRuta, datos);
}

void cImportarInpar::InparDefuncion(const Marco& marco, const std::string& strRuta,
                                    const DatosRegistro& datos) {
  registro("InparDefuncion", inparDefuncion(), marco, strRuta, datos);
}

}  // namespace fidaleon
