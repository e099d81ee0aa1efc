#include "documents/MiembrosMatrimonio.h"

#include <algorithm>
#include <stdexcept>

#include "documents/MatrimonioPartes.h"

namespace fidaleon::documents {

const std::vector<MiembroMatrimonio>& miembrosMatrimonio() {
  using T = cCTipoDocumento;
  constexpr const char* MARRIAGES = "SELECT CodLibro FROM Matrimonio WHERE CodLibro=";
  const CargadorMatrimonio& base = Cargar_Documentos_Matrimonio();
  const CargadorMatrimonio& menorca = Cargar_Documentos_MatrimonioMenorca();
  const CargadorMatrimonio& santiago = Cargar_Documentos_MatrimonioSantiago();
  const auto entry = matrimonioStatement;
  const auto dossier = expedienteStatement;
  static const std::vector<MiembroMatrimonio> todos{
      {"ImprimirCertificadoLiteralPartidaMatrimonio",
       base,
       {T::CertificadoLiteralPartidaMatrimonio},
       entry},
      {"ImprimirCertificadoLiteralPartidaMatrimonioMenorca",
       menorca,
       {T::CertificadoLiteralPartidaMatrimonio},
       entry},
      {"ImprimirCertificadoPartidaMatrimonio", base, {T::CertificadoPartidaMatrimonio}, entry},
      {"ImprimirCertificadoPartidaMatrimonioMenorca",
       menorca,
       {T::CertificadoPartidaMatrimonio},
       entry},
      {"ImprimirPartidaMatrimonio", base, {T::PartidaMatrimonio}, entry},
      {"ImprimirPartidaMatrimonioMenorca", menorca, {T::PartidaMatrimonio}, entry},
      {"ImprimirVolanteMatrimonio", base, {T::VolanteMatrimonio}, entry},
      {"ImprimirVolanteMatrimonioMenorca", menorca, {T::VolanteMatrimonio}, entry},
      {"ImprimirComunicacionMatrimonio", base, {T::ComunicacionMatrimonio}, entry},
      {"ImprimirComunicacionMatrimonioMenorca", menorca, {T::ComunicacionMatrimonio}, entry},
      {"ImprimirComunicacionMatrimonioSantiago", santiago, {T::ComunicacionMatrimonio}, entry},
      {"ImprimirNotificacionMatrimonio", base, {T::NotificacionMatrimonio}, entry},
      {"ImprimirNotificacionMatrimonioMenorca", menorca, {T::NotificacionMatrimonio}, entry},
      {"ImprimirEstadoExpMatr", santiago, {T::EstadoExpedienteMatrimonio}, entry},
      {"ImprimirEstadoExpMatrMenorca", menorca, {T::EstadoExpedienteMatrimonio}, entry},
      {"InformeExhortoMatrimonio", base, {T::ExhortoAmonestaciones}, dossier},
      {"InformeExhortoMatrimonioMenorca", menorca, {T::ExhortoAmonestaciones}, dossier},
      // Everywhere, so that its long dates are Catalan.
      {"InformeAtestadoFueraDiocesis", menorca, {T::AtestadoMatrimonioFueraDiocesis}, dossier},
      {"ImprimirExpedienteFormato1",
       base,
       {T::ExpedienteMatrimonioMadrid, T::EstadoExpedienteMatrimonio},
       dossier},
      {"ImprimirExpedienteMatrimonialMenorca",
       menorca,
       {T::ExpedienteMatrimonioMadrid, T::EstadoExpedienteMatrimonio},
       dossier},
      {"ImprimirExpedienteFormatoMadrid", base, {T::ExpedienteMatrimonioMadrid}, dossier},
      {"ImprimirExpedienteFormato2",
       base,
       {T::ExpedienteMatrimonioMadrid, T::EstadoExpedienteMatrimonio},
       dossier},
      {"ImprimirExpedienteFormato3", base, {T::ExpedienteMatrimonioOtras}, dossier},
      {"ImprimirResumenMatrimonio", base, {T::ResumenMatrimonio}, dossier},
      {"ImprimirResumenMatrimonio2", base, {T::ResumenMatrimonio2}, dossier},
      {"ImprimirLibroMatrimonio", base, {T::LibroMatrimonio}, matrimonioBookStatement, MARRIAGES},
      {"ImprimirLibroMatrimonioMenorca",
       menorca,
       {T::LibroMatrimonio},
       matrimonioBookStatement,
       MARRIAGES},
      {"ImprimirIndiceLibroMatrimonio",
       base,
       {T::IndiceLibroMatrimonio},
       matrimonioIndexStatement,
       MARRIAGES},
  };
  return todos;
}

const MiembroMatrimonio& miembroMatrimonio(std::string_view nombre) {
  const auto& todos = miembrosMatrimonio();
  const auto hallado = std::find_if(todos.begin(), todos.end(),
                                    [&](const MiembroMatrimonio& m) { return nombre == m.nombre; });
  if (hallado == todos.end()) throw std::logic_error("no such member: " + std::string(nombre));
  return *hallado;
}

}  // namespace fidaleon::documents
