// The examinations in the dialog of marriages, in the edition that has them.

#include "core/dialogs/Guard.h"
#include "registers/marriage/frmPartidaMatrimonio.h"

namespace fidaleon {

using FDAPI::cCOperacion;

namespace {

constexpr const char* EXAMENES_SIN_GUARDAR =
    "La partida está guardada, pero sus exámenes no. Siguen en esta ventana: acepte otra vez para "
    "guardarlos.";

}  // namespace

void frmPartidaMatrimonio::crearExamenes() {
  const bool madrid = contexto_.edicion(FDAPI::cCAplicacion::APP_FIDALEON_MADRID);
  mstPartida.setTabVisible(TAB_EXAMENES, madrid);
  if (!madrid) return;
  examenes_.emplace(*this);
  for (forms::TextBox* campo : examenes_->campos()) crearAnexo(*campo);
}

void frmPartidaMatrimonio::cargarExamenes() {
  if (esAlta()) return;
  examenes_->mostrar(registro_.Estado ? CargarExamenes(*conBaseDatos, registro_.IDMatrimonio)
                                      : examenesDeTexto(registro_.ExamenesEnEspera));
}

/// Those of an entry that only the list knows wait with it for a key.
bool frmPartidaMatrimonio::antesDeCorregir(cMatrimonio& m) {
  if (!examenes_) return true;
  if (m.Estado) return grabarExamenes(Operacion, m.IDMatrimonio);
  m.ExamenesEnEspera = textoDeExamenes(examenes_->respuestas());
  return true;
}

/// The rows of a new marriage are written without its key, so that nobody would find the answers:
/// they are stored once more under it.
const char* frmPartidaMatrimonio::trasAlta(const cMatrimonio& m) {
  if (!examenes_) return nullptr;
  const bool escritas = hayRespuestas(examenes_->respuestas());
  const cCOperacion corregir = esSolicitud() ? cCOperacion::EDITARSOLICITUD : cCOperacion::EDITAR;
  if (grabarExamenes(Operacion, 0) && (!escritas || grabarExamenes(corregir, m.IDMatrimonio)))
    return nullptr;
  return escritas ? EXAMENES_SIN_GUARDAR : nullptr;
}

bool frmPartidaMatrimonio::grabarExamenes(cCOperacion operacion, std::int32_t id) {
  return procedimiento("GrabarExamenes", [&] {
    TransaccionSinVuelta transaccion(contexto_, *conBaseDatos);
    GrabarExamenes(*conBaseDatos, operacion, id, examenes_->respuestas());
    transaccion.terminar();
  });
}

}  // namespace fidaleon
