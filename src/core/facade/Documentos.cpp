#include "core/facade/Documentos.h"

#include <algorithm>

#include "core/contract/FDAPI.h"
#include "documents/MiembrosMatrimonio.h"

namespace fidaleon {

namespace {

constexpr auto PARTIDA = ClaseDocumento::Partida;
constexpr auto SOLICITUD = ClaseDocumento::Solicitud;
constexpr auto LIBRO = ClaseDocumento::Libro;
constexpr auto DUPLICADA = ClaseDocumento::Duplicada;
constexpr auto SIN_LIBRO = ClaseDocumento::SinLibro;
constexpr const char* COMUN = "";
constexpr const char* MENORCA = FDAPI::cCAplicacion::APP_FIDALEON_MENORCA;
constexpr const char* SANTIAGO = FDAPI::cCAplicacion::APP_FIDALEON_SANTIAGO;
constexpr const char* CON_JUZGADO = documents::EDICION_CON_JUZGADO;
constexpr const char* MADRID = FDAPI::cCAplicacion::APP_FIDALEON_MADRID;

using N = cNucleo;
using I = cInformes;

const Documento TODOS[] = {
    {&BAUTISMO, PARTIDA, "certificado", COMUN, "InformeCertificadoPartidaBautismo",
     PasoFirmado{&N::InformeCertificadoPartidaBautismo, &I::ImprimirCertificadoPartidaBautismo},
     "certificado_bautismo", "Certificado de bautismo"},
    {&BAUTISMO, PARTIDA, "certificado", MENORCA, "InformeCertificadoPartidaBautismoMenorca",
     PasoFirmado{&N::InformeCertificadoPartidaBautismoMenorca,
                 &I::ImprimirCertificadoPartidaBautismoMenorca},
     "certificado_bautismo_menorca", "Certificado de bautismo"},
    {&BAUTISMO, PARTIDA, "literal", COMUN, "InformeCertificadoLiteralPartidaBautismo",
     PasoFirmado{&N::InformeCertificadoLiteralPartidaBautismo,
                 &I::ImprimirCertificadoLiteralPartidaBautismo},
     "certificado_literal_bautismo", "Certificado literal de bautismo"},
    {&BAUTISMO, PARTIDA, "literal", MENORCA, "InformeCertificadoLiteralPartidaBautismoMenorca",
     PasoFirmado{&N::InformeCertificadoLiteralPartidaBautismoMenorca,
                 &I::ImprimirCertificadoLiteralPartidaBautismoMenorca},
     "certificado_literal_bautismo_menorca", "Certificado literal de bautismo"},
    {&BAUTISMO, PARTIDA, "partida", COMUN, "InformePartidaBautismo",
     PasoSimple{&N::InformePartidaBautismo, &I::ImprimirPartidaBautismo}, "partida_bautismo",
     "Partida de bautismo"},
    {&BAUTISMO, PARTIDA, "partida", MENORCA, "InformePartidaBautismoMenorca",
     PasoSimple{&N::InformePartidaBautismoMenorca, &I::ImprimirPartidaBautismoMenorca},
     "partida_bautismo_menorca", "Partida de bautismo"},
    {&BAUTISMO, PARTIDA, "volante", COMUN, "InformeVolanteBautismo",
     PasoSimple{&N::InformeVolanteBautismo, &I::ImprimirVolanteBautismo}, "volante_bautismo",
     "Volante de bautismo"},
    // The row has the columns of both editions.
    {&BAUTISMO, PARTIDA, "volante", MENORCA, "InformeVolanteBautismoMenorca",
     PasoSimple{&N::InformeVolanteBautismoMenorca, &I::ImprimirVolanteBautismo},
     "volante_bautismo_menorca", "Volante de bautismo"},
    {&BAUTISMO, SOLICITUD, "datos", COMUN, "InformeSolicitudPartidaBautismoDatos",
     PasoSimple{&N::InformeSolicitudPartidaBautismoDatos,
                &I::ImprimirSolicitudPartidaBautismoDatos},
     "solicitud_bautismo", "Solicitud de bautismo"},
    {&BAUTISMO, SOLICITUD, "datos", MENORCA, "InformeSolicitudPartidaBautismoDatosMenorca",
     PasoSimple{&N::InformeSolicitudPartidaBautismoDatosMenorca,
                &I::ImprimirSolicitudPartidaBautismoDatosMenorca},
     "solicitud_bautismo_menorca", "Solicitud de bautismo"},
    {&BAUTISMO, SOLICITUD, "datos", SANTIAGO, "InformeSolicitudPartidaBautismoDatosSantiago",
     PasoSimple{&N::InformeSolicitudPartidaBautismoDatosSantiago,
                &I::ImprimirSolicitudPartidaBautismoDatosSantiago},
     "solicitud_bautismo_santiago", "Solicitud de bautismo"},
    {&CONFIRMACION, PARTIDA, "certificado", COMUN, "InformeCertificadoPartidaConfirmacion",
     PasoFirmado{&N::InformeCertificadoPartidaConfirmacion,
                 &I::ImprimirCertificadoPartidaConfirmacion},
     "certificado_confirmacion", "Certificado de confirmación"},
    {&CONFIRMACION, PARTIDA, "certificado", MENORCA, "InformeCertificadoPartidaConfirmacionMenorca",
     PasoFirmado{&N::InformeCertificadoPartidaConfirmacionMenorca,
                 &I::ImprimirCertificadoPartidaConfirmacionMenorca},
     "certificado_confirmacion_menorca", "Certificado de confirmación"},
    {&CONFIRMACION, PARTIDA, "literal", COMUN, "InformeCertificadoLiteralPartidaConfirmacion",
     PasoFirmado{&N::InformeCertificadoLiteralPartidaConfirmacion,
                 &I::ImprimirCertificadoLiteralPartidaConfirmacion},
     "certificado_literal_confirmacion", "Certificado literal de confirmación"},
    {&CONFIRMACION, PARTIDA, "literal", MENORCA,
     "InformeCertificadoLiteralPartidaConfirmacionMenorca",
     PasoFirmado{&N::InformeCertificadoLiteralPartidaConfirmacionMenorca,
                 &I::ImprimirCertificadoLiteralPartidaConfirmacionMenorca},
     "certificado_literal_confirmacion_menorca", "Certificado literal de confirmación"},
    {&CONFIRMACION, PARTIDA, "partida", COMUN, "InformePartidaConfirmacion",
     PasoSimple{&N::InformePartidaConfirmacion, &I::ImprimirPartidaConfirmacion},
     "partida_confirmacion", "Partida de confirmación"},
    {&CONFIRMACION, PARTIDA, "partida", MENORCA, "InformePartidaConfirmacionMenorca",
     PasoSimple{&N::InformePartidaConfirmacionMenorca, &I::ImprimirPartidaConfirmacionMenorca},
     "partida_confirmacion_menorca", "Partida de confirmación"},
    {&CONFIRMACION, PARTIDA, "notificacion", COMUN, "InformeNotificacionConfirmacion",
     PasoSimple{&N::InformeNotificacionConfirmacion, &I::ImprimirNotificacionConfirmacion},
     "notificacion_confirmacion", "Notificación de confirmación"},
    {&CONFIRMACION, PARTIDA, "notificacion", MENORCA, "InformeNotificacionConfirmacionMenorca",
     PasoSimple{&N::InformeNotificacionConfirmacionMenorca,
                &I::ImprimirNotificacionConfirmacionMenorca},
     "notificacion_confirmacion_menorca", "Notificación de confirmación"},
    // One operation for all editions.
    {&CONFIRMACION, SOLICITUD, "datos", COMUN, "InformeSolicitudConfirmacion",
     PasoSimple{&N::InformeSolicitudConfirmacion, &I::ImprimirSolicitudConfirmacion},
     "solicitud_confirmacion", "Solicitud de confirmación", false, true},
    {&CONFIRMACION, SOLICITUD, "datos", MENORCA, "InformeSolicitudConfirmacion",
     PasoSimple{&N::InformeSolicitudConfirmacion, &I::ImprimirSolicitudConfirmacion},
     "solicitud_confirmacion_menorca", "Solicitud de confirmación", false, true},
    {&CONFIRMACION,
     SIN_LIBRO,
     "sin-libro",
     COMUN,
     "ImprimirPartidaSinLibro",
     {},
     "notificacion_sin_libro",
     "Notificación de confirmación",
     false},
    {&DEFUNCION, PARTIDA, "certificado", COMUN, "InformeCertificadoPartidaDefuncion",
     PasoFirmado{&N::InformeCertificadoPartidaDefuncion, &I::ImprimirCertificadoPartidaDefuncion},
     "certificado_defuncion", "Certificado de defunción"},
    {&DEFUNCION, PARTIDA, "certificado", MENORCA, "InformeCertificadoPartidaDefuncionMenorca",
     PasoFirmado{&N::InformeCertificadoPartidaDefuncionMenorca,
                 &I::ImprimirCertificadoPartidaDefuncionMenorca},
     "certificado_defuncion_menorca", "Certificado de defunción"},
    {&DEFUNCION, PARTIDA, "literal", COMUN, "InformeCertificadoLiteralPartidaDefuncion",
     PasoFirmado{&N::InformeCertificadoLiteralPartidaDefuncion,
                 &I::ImprimirCertificadoLiteralPartidaDefuncion},
     "certificado_literal_defuncion", "Certificado literal de defunción"},
    {&DEFUNCION, PARTIDA, "literal", MENORCA, "InformeCertificadoLiteralPartidaDefuncionMenorca",
     PasoFirmado{&N::InformeCertificadoLiteralPartidaDefuncionMenorca,
                 &I::ImprimirCertificadoLiteralPartidaDefuncionMenorca},
     "certificado_literal_defuncion_menorca", "Certificado literal de defunción"},
    {&DEFUNCION, PARTIDA, "partida", COMUN, "InformePartidaDefuncion",
     PasoSimple{&N::InformePartidaDefuncion, &I::ImprimirPartidaDefuncion}, "partida_defuncion",
     "Partida de defunción"},
    {&DEFUNCION, PARTIDA, "partida", MENORCA, "InformePartidaDefuncionMenorca",
     PasoSimple{&N::InformePartidaDefuncionMenorca, &I::ImprimirPartidaDefuncionMenorca},
     "partida_defuncion_menorca", "Partida de defunción"},
    {&BAUTISMO, LIBRO, "libro", COMUN, "InformeLibroBautismo",
     PasoSimple{&N::InformeLibroBautismo, &I::ImprimirLibroBautismo}, "libro_bautismo",
     "Libro de bautismos"},
    {&BAUTISMO, LIBRO, "libro", MENORCA, "InformeLibroBautismoMenorca",
     PasoSimple{&N::InformeLibroBautismoMenorca, &I::ImprimirLibroBautismoMenorca},
     "libro_bautismo_menorca", "Libro de bautismos"},
    {&BAUTISMO, LIBRO, "indice", COMUN, "InformeIndiceLibroBautismo",
     PasoSimple{&N::InformeIndiceLibroBautismo, &I::ImprimirIndiceLibroBautismo},
     "indice_libro_bautismo", "Índice del libro de bautismos"},
    {&BAUTISMO, LIBRO, "indice", MENORCA, "InformeIndiceLibroBautismoMenorca",
     PasoSimple{&N::InformeIndiceLibroBautismoMenorca, &I::ImprimirIndiceLibroBautismo},
     "indice_libro_bautismo_menorca", "Índice del libro de bautismos"},
    {&BAUTISMO,
     DUPLICADA,
     "duplicadas",
     COMUN,
     "ImprimirDuplicadasBautismo",
     {},
     "duplicado_bautismo",
     "Duplicado de bautismos"},

    {&CONFIRMACION, LIBRO, "libro", COMUN, "InformeLibroConfirmacion",
     PasoSimple{&N::InformeLibroConfirmacion, &I::ImprimirLibroConfirmacion}, "libro_confirmacion",
     "Libro de confirmaciones"},
    {&CONFIRMACION, LIBRO, "libro", MENORCA, "InformeLibroConfirmacionMenorca",
     PasoSimple{&N::InformeLibroConfirmacionMenorca, &I::ImprimirLibroConfirmacionMenorca},
     "libro_confirmacion_menorca", "Libro de confirmaciones"},
    {&CONFIRMACION, LIBRO, "indice", COMUN, "InformeIndiceLibroConfirmacion",
     PasoSimple{&N::InformeIndiceLibroConfirmacion, &I::ImprimirIndiceLibroConfirmacion},
     "indice_libro_confirmacion", "Índice del libro de confirmaciones"},
    {&CONFIRMACION, LIBRO, "indice", MENORCA, "InformeIndiceLibroConfirmacion",
     PasoSimple{&N::InformeIndiceLibroConfirmacion, &I::ImprimirIndiceLibroConfirmacion},
     "indice_libro_confirmacion_menorca", "Índice del libro de confirmaciones"},
    {&CONFIRMACION,
     DUPLICADA,
     "duplicadas",
     COMUN,
     "ImprimirDuplicadasConfirmacion",
     {},
     "duplicado_confirmacion",
     "Duplicado de confirmaciones"},

    {&MATRIMONIO, PARTIDA, "certificado", COMUN, "InformeCertificadoPartidaMatrimonio",
     PasoSimple{&N::InformeCertificadoPartidaMatrimonio, &I::ImprimirCertificadoPartidaMatrimonio},
     "certificado_matrimonio", "Certificado de matrimonio"},
    {&MATRIMONIO, PARTIDA, "certificado", MENORCA, "InformeCertificadoPartidaMatrimonioMenorca",
     PasoSimple{&N::InformeCertificadoPartidaMatrimonioMenorca,
                &I::ImprimirCertificadoPartidaMatrimonioMenorca},
     "certificado_matrimonio_menorca", "Certificado de matrimonio"},
    {&MATRIMONIO, PARTIDA, "literal", COMUN, "InformeCertificadoLiteralPartidaMatrimonio",
     PasoSimple{&N::InformeCertificadoLiteralPartidaMatrimonio,
                &I::ImprimirCertificadoLiteralPartidaMatrimonio},
     "certificado_literal_matrimonio", "Certificado literal de matrimonio"},
    {&MATRIMONIO, PARTIDA, "literal", MENORCA, "InformeCertificadoLiteralPartidaMatrimonioMenorca",
     PasoSimple{&N::InformeCertificadoLiteralPartidaMatrimonioMenorca,
                &I::ImprimirCertificadoLiteralPartidaMatrimonioMenorca},
     "certificado_literal_matrimonio_menorca", "Certificado literal de matrimonio"},
    {&MATRIMONIO, PARTIDA, "partida", COMUN, "InformePartidaMatrimonio",
     PasoSimple{&N::InformePartidaMatrimonio, &I::ImprimirPartidaMatrimonio}, "partida_matrimonio",
     "Partida de matrimonio"},
    {&MATRIMONIO, PARTIDA, "partida", MENORCA, "InformePartidaMatrimonioMenorca",
     PasoSimple{&N::InformePartidaMatrimonioMenorca, &I::ImprimirPartidaMatrimonioMenorca},
     "partida_matrimonio_menorca", "Partida de matrimonio"},
    {&MATRIMONIO, PARTIDA, "volante", COMUN, "InformeVolanteMatrimonio",
     PasoSimple{&N::InformeVolanteMatrimonio, &I::ImprimirVolanteMatrimonio}, "volante_matrimonio",
     "Volante de matrimonio"},
    {&MATRIMONIO, PARTIDA, "volante", MENORCA, "InformeVolanteMatrimonioMenorca",
     PasoSimple{&N::InformeVolanteMatrimonioMenorca, &I::ImprimirVolanteMatrimonioMenorca},
     "volante_matrimonio_menorca", "Volante de matrimonio"},
    {&MATRIMONIO, PARTIDA, "comunicacion", COMUN, "InformeComunicacionMatrimonio",
     PasoSimple{&N::InformeComunicacionMatrimonio, &I::ImprimirComunicacionMatrimonio},
     "comunicacion_matrimonio", "Comunicación de matrimonio"},
    {&MATRIMONIO, PARTIDA, "comunicacion", MENORCA, "InformeComunicacionMatrimonioMenorca",
     PasoSimple{&N::InformeComunicacionMatrimonioMenorca,
                &I::ImprimirComunicacionMatrimonioMenorca},
     "comunicacion_matrimonio_menorca", "Comunicación de matrimonio"},
    {&MATRIMONIO, PARTIDA, "comunicacion", SANTIAGO, "InformeComunicacionMatrimonioSantiago",
     PasoSimple{&N::InformeComunicacionMatrimonioSantiago,
                &I::ImprimirComunicacionMatrimonioSantiago},
     "comunicacion_matrimonio_santiago", "Comunicación de matrimonio"},
    {&MATRIMONIO, PARTIDA, "registro-civil", COMUN, "InformeNotificacionMatrimonio",
     PasoConConfig{&N::InformeNotificacionMatrimonio, &I::ImprimirNotificacionMatrimonio},
     "notificacion_matrimonio", "Notificación de matrimonio"},
    {&MATRIMONIO, PARTIDA, "registro-civil", MENORCA, "InformeNotificacionMatrimonioMenorca",
     PasoConConfig{&N::InformeNotificacionMatrimonioMenorca,
                   &I::ImprimirNotificacionMatrimonioMenorca},
     "notificacion_matrimonio_menorca", "Notificación de matrimonio"},
    // These two write the rows of Santiago.
    {&MATRIMONIO, PARTIDA, "registro-civil", SANTIAGO, "InformeNotificacionMatrimonio",
     PasoConConfig{&N::InformeNotificacionMatrimonio, &I::ImprimirNotificacionMatrimonio},
     "notificacion_matrimonio_santiago", "Notificación de matrimonio"},
    {&MATRIMONIO, PARTIDA, "registro-civil", CON_JUZGADO, "InformeNotificacionMatrimonio",
     PasoConConfig{&N::InformeNotificacionMatrimonio, &I::ImprimirNotificacionMatrimonio},
     "notificacion_matrimonio_santiago", "Notificación de matrimonio"},
    {&MATRIMONIO, PARTIDA, "estado", COMUN, "InformeEstadoExpMatr",
     PasoSimple{&N::InformeEstadoExpMatr, &I::ImprimirEstadoExpMatr},
     "estado_expediente_matrimonio", "Estado de expediente matrimonial", false},
    {&MATRIMONIO, PARTIDA, "estado", MENORCA, "InformeEstadoExpMatrMenorca",
     PasoSimple{&N::InformeEstadoExpMatrMenorca, &I::ImprimirEstadoExpMatrMenorca},
     "estado_expediente_matrimonio_menorca", "Estado de expediente matrimonial", false},
    {&MATRIMONIO, SOLICITUD, "exhorto", COMUN, "InformeExhortoMatrimonio",
     PasoSimple{&N::InformeExhortoMatrimonio, &I::InformeExhortoMatrimonio}, "exhorto_matrimonio",
     "Exhorto de amonestaciones"},
    {&MATRIMONIO, SOLICITUD, "exhorto", MENORCA, "InformeExhortoMatrimonioMenorca",
     PasoSimple{&N::InformeExhortoMatrimonioMenorca, &I::InformeExhortoMatrimonioMenorca},
     "exhorto_matrimonio_menorca", "Exhorto de amonestaciones"},
    {&MATRIMONIO, SOLICITUD, "atestado", COMUN, "InformeAtestadoFueraDiocesis",
     PasoSimple{&N::InformeAtestadoFueraDiocesis, &I::InformeAtestadoFueraDiocesis},
     "atestado_fuera_diocesis", "Atestado para otras Diócesis"},
    {&MATRIMONIO, SOLICITUD, "expediente", MADRID, "InformeExpedienteFormatoMadrid",
     PasoSimple{&N::InformeExpedienteFormatoMadrid, &I::ImprimirExpedienteFormatoMadrid},
     "expediente_matrimonio_madrid", "Expediente matrimonial en Madrid"},
    {&MATRIMONIO, SOLICITUD, "expediente", MENORCA, "InformeExpedienteMatrimonialMenorca",
     PasoSimple{&N::InformeExpedienteMatrimonialMenorca, &I::ImprimirExpedienteMatrimonialMenorca},
     "expediente_matrimonio_menorca", "Expediente matrimonial"},
    {&MATRIMONIO, SOLICITUD, "expediente-1", COMUN, "InformeExpedienteFormato1",
     PasoSimple{&N::InformeExpedienteFormato1, &I::ImprimirExpedienteFormato1},
     "expediente_matrimonio_1", "Expediente matrimonial (formato 1)"},
    // The rows of the first, under a template of its own.
    {&MATRIMONIO, SOLICITUD, "expediente-2", COMUN, "InformeExpedienteFormato2",
     PasoSimple{&N::InformeExpedienteFormato2, &I::ImprimirExpedienteFormato1},
     "expediente_matrimonio_2", "Expediente matrimonial (formato 2)"},
    {&MATRIMONIO, SOLICITUD, "expediente-3", COMUN, "InformeExpedienteFormato3",
     PasoConVias{&N::InformeExpedienteFormato3, &I::ImprimirExpedienteFormato3},
     "expediente_matrimonio_3", "Expediente matrimonial (formato 3)"},
    {&MATRIMONIO, SOLICITUD, "resumen", COMUN, "InformeResumenMatrimonio",
     PasoSimple{&N::InformeResumenMatrimonio, &I::ImprimirResumenMatrimonio},
     "resumen_matrimonio_1", "Resumen de matrimonio (Allegato V). Página 1"},
    {&MATRIMONIO, SOLICITUD, "resumen-2", COMUN, "InformeResumenMatrimonio2",
     PasoSimple{&N::InformeResumenMatrimonio2, &I::ImprimirResumenMatrimonio2},
     "resumen_matrimonio_2", "Resumen de matrimonio (Allegato V). Página 2"},
    {&MATRIMONIO, LIBRO, "libro", COMUN, "InformeLibroMatrimonio",
     PasoSimple{&N::InformeLibroMatrimonio, &I::ImprimirLibroMatrimonio}, "libro_matrimonio",
     "Libro de matrimonios"},
    {&MATRIMONIO, LIBRO, "libro", MENORCA, "InformeLibroMatrimonioMenorca",
     PasoSimple{&N::InformeLibroMatrimonioMenorca, &I::ImprimirLibroMatrimonioMenorca},
     "libro_matrimonio_menorca", "Libro de matrimonios"},
    {&MATRIMONIO, LIBRO, "indice", COMUN, "InformeIndiceLibroMatrimonio",
     PasoSimple{&N::InformeIndiceLibroMatrimonio, &I::ImprimirIndiceLibroMatrimonio},
     "indice_libro_matrimonio", "Índice del libro de matrimonios"},
    {&MATRIMONIO, LIBRO, "indice", MENORCA, "InformeIndiceLibroMatrimonio",
     PasoSimple{&N::InformeIndiceLibroMatrimonio, &I::ImprimirIndiceLibroMatrimonio},
     "indice_libro_matrimonio_menorca", "Índice del libro de matrimonios"},
    {&MATRIMONIO,
     DUPLICADA,
     "duplicadas",
     COMUN,
     "ImprimirDuplicadasMatrimonio",
     {},
     "duplicado_matrimonio",
     "Duplicado de matrimonios"},

    {&DEFUNCION, LIBRO, "libro", COMUN, "InformeLibroDefuncion",
     PasoSimple{&N::InformeLibroDefuncion, &I::ImprimirLibroDefuncion}, "libro_defuncion",
     "Libro de defunciones"},
    {&DEFUNCION, LIBRO, "libro", MENORCA, "InformeLibroDefuncionMenorca",
     PasoSimple{&N::InformeLibroDefuncionMenorca, &I::ImprimirLibroDefuncionMenorca},
     "libro_defuncion_menorca", "Libro de defunciones"},
    {&DEFUNCION, LIBRO, "indice", COMUN, "InformeIndiceLibroDefuncion",
     PasoSimple{&N::InformeIndiceLibroDefuncion, &I::ImprimirIndiceLibroDefuncion},
     "indice_libro_defuncion", "Índice del libro de defunciones"},
    {&DEFUNCION, LIBRO, "indice", MENORCA, "InformeIndiceLibroDefuncion",
     PasoSimple{&N::InformeIndiceLibroDefuncion, &I::ImprimirIndiceLibroDefuncion},
     "indice_libro_defuncion_menorca", "Índice del libro de defunciones"},
    {&DEFUNCION,
     DUPLICADA,
     "duplicadas",
     COMUN,
     "ImprimirDuplicadasDefuncion",
     {},
     "duplicado_defuncion",
     "Duplicado de defunciones"},
};

constexpr PersonaDocumento NOVIA{"Documentos_Matrimonio_Novias", "NombreNovia",
                                 "PrimerApellidoNovia", "SegundoApellidoNovia"};

constexpr PersonaDocumento sola(const char* tabla) {
  return {tabla, "Nombre", "PrimerApellido", "SegundoApellido"};
}

constexpr FilasDocumento FILAS[] = {
    {&BAUTISMO,
     "Documentos_Bautismo",
     {"Documentos_Bautismo", "NombreHijo", "PrimerApellidoHijo", "SegundoApellidoHijo"}},
    {&CONFIRMACION, "Documentos_Confirmacion", sola("Documentos_Confirmacion")},
    {&MATRIMONIO,
     "Documentos_Matrimonio",
     {"Documentos_Matrimonio_Novios", "NombreNovio", "PrimerApellidoNovio", "SegundoApellidoNovio"},
     &NOVIA},
    {&DEFUNCION, "Documentos_Defuncion", sola("Documentos_Defuncion")},
};

}  // namespace

std::span<const Documento> documentos() {
  return TODOS;
}

const Documento* documento(const Sacramento& sacramento, std::string_view orden,
                           std::string_view edicion) {
  const Documento* comun = nullptr;
  for (const Documento& d : TODOS) {
    if (d.sacramento != &sacramento || d.orden != orden) continue;
    if (d.edicion == edicion) return &d;
    if (std::string_view(d.edicion).empty()) comun = &d;
  }
  return comun;
}

const Documento* documento(std::string_view operacion) {
  const auto* hallado = std::find_if(std::begin(TODOS), std::end(TODOS),
                                     [&](const Documento& d) { return d.operacion == operacion; });
  return hallado == std::end(TODOS) ? nullptr : hallado;
}

const FilasDocumento* filasDocumento(const Sacramento& sacramento) {
  for (const FilasDocumento& f : FILAS)
    if (f.sacramento == &sacramento) return &f;
  return nullptr;
}

}  // namespace fidaleon
