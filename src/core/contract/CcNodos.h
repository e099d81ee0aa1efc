#pragma once

namespace fidaleon {

/// Names of the nodes of the main program's tree. Those of the bank, donation and accounting
/// groups belong to sister modules and are kept so that the table stays whole.
struct CcNodos {
  static constexpr const char* INSTITUCION = "Instituciones";
  static constexpr const char* BANCO = "Bancos";
  static constexpr const char* MUNICIPIO = "Municipios";
  static constexpr const char* PROVINCIA = "Provincias";
  static constexpr const char* CARITATIVO = "Donantes";
  static constexpr const char* PRESENTADOR = "Presentadores";
  static constexpr const char* TIPODONATIVO = "Tipos de Donativos";
  static constexpr const char* REMESA = "Remesas";
  static constexpr const char* RECIBOS = "Recibos por caja";
  static constexpr const char* DONATIVOS = "Donativos";
  static constexpr const char* GESTIONPARROQUIAL = "Gestión Parroquial";
  static constexpr const char* INFPLANTILLAS = "Plantillas";
  static constexpr const char* INFDOCUMENTOS = "Documentos";
  static constexpr const char* PADRON = "Padrón";
  static constexpr const char* COLABORADOR = "Colaboradores";
  static constexpr const char* CARGO = "Cargos";
  static constexpr const char* ACTIVIDAD = "Actividades";
  static constexpr const char* LIBROS = "Libros";
  static constexpr const char* PARTIDAS = "Partidas";
  static constexpr const char* SOLICITUDES = "Solicitudes";
  static constexpr const char* INFORMES = "Informes";
  static constexpr const char* INFORMESYDOCUMENTOS = "Informes y documentos";
  static constexpr const char* INFORMECERTIFICADORECIBOS = "Certificado-Recibos";
  static constexpr const char* INFORMEPERSONADONATIVO = "Donativos por donante";
  static constexpr const char* INFORMEREMESA = "Remesas";
  static constexpr const char* INFORMEPERSONA = "Donantes";
  static constexpr const char* INFORMEDONANTE = "Donantes con donativo";
  static constexpr const char* INFORMEDONATIVO = "Donativos con donante";
  static constexpr const char* INFORMEETIQUETA = "Etiquetas";
  static constexpr const char* INFORMEIMPAGADOS = "Donativos impagados";
  static constexpr const char* INFORMETOTALESDONATIVOS = "Totales de donativos";
  static constexpr const char* INFDUPLICADASBAUTISMO = "Duplicadas de bautismo";
  static constexpr const char* INFDUPLICADASCONFIRMACION = "Duplicadas de confirmación";
  static constexpr const char* INFDUPLICADASMATRIMONIO = "Duplicadas de matrimonio";
  static constexpr const char* INFDUPLICADASDEFUNCION = "Duplicadas de defunción";
  static constexpr const char* INFACTIVIDADES = "Actividades";
  static constexpr const char* INFCOLABORADORES = "Colaboradores";
  static constexpr const char* INFCOLABORADORESEXTENDIDO = "Colaboradores (extendido)";
  static constexpr const char* ELEMENTOSENVIADOS = "Elementos enviados";
  static constexpr const char* BANDEJAENTRADA = "Bandeja de entrada";
  static constexpr const char* BANDEJASALIDA = "Bandeja de salida";
  static constexpr const char* INFAGENDA = "Tareas de la agenda";
  static constexpr const char* INFSOLICITUD_BAUTISMO = "Solicitud de bautismo";
  static constexpr const char* INFNOTIFICACIONCONFIRMACION = "Notificación de confirmación";
  static constexpr const char* INFNOTIFICACIONCONFIRMACIONPARR =
      "Notificación confirmación a parr. baut.";
  static constexpr const char* INFEXPEDIENTEMATRIMONIALMADRID = "Expediente matrimonial en Madrid";
  static constexpr const char* INFEXPEDIENTEMATRIMONIALOTRASDIOCESIS =
      "Expediente matrimonial en otras diócesis";
  static constexpr const char* INFEXPEDIENTEMATRIMONIAL = "Expediente matrimonial";
  static constexpr const char* INFEXPEDIENTEMATRIMONIALFORMATO1 =
      "Expediente matrimonial (formato 1)";
  static constexpr const char* INFEXPEDIENTEMATRIMONIALFORMATO3 =
      "Expediente matrimonial (formato 3)";
  static constexpr const char* INFEXPEDIENTEMATRIMONIALFORMATO2 =
      "Expediente matrimonial (formato 2)";
  static constexpr const char* INFRESUMENMATRIMONIAL =
      "Resumen de matrimonio (Allegato V). Página 1";
  static constexpr const char* INFATESTADO = "Atestado para otras Diócesis";
  static constexpr const char* INFRESUMENMATRIMONIAL2 =
      "Resumen de matrimonio (Allegato V). Página 2";
  static constexpr const char* CONTABILIDAD = "Contabilidad";
  static constexpr const char* EMPRESAS = "Empresas";
  static constexpr const char* GRUPOS = "Grupos";
  static constexpr const char* ACTIVO = "Activo";
  static constexpr const char* PASIVO = "Pasivo";
  static constexpr const char* DEBE = "Debe";
  static constexpr const char* HABER = "Haber";
  static constexpr const char* CUENTAS = "Cuentas";
  static constexpr const char* SUBCUENTAS = "SubCuentas";
  static constexpr const char* ASIENTOS = "Asientos";
  static constexpr const char* ASIENTOPREDEFINIDO = "Asientos predefinidos";
  static constexpr const char* PRESUPUESTO = "Presupuesto";
  static constexpr const char* BALANCESUMASYSALDOS = "Balance de sumas y saldos";
  static constexpr const char* BALANCESITUACION = "Balance de situación";
  static constexpr const char* BALANCESITUACIONCOMP = "Balance de situación comparativo";
  static constexpr const char* BALANCEPYG = "Balance de pérdidas y ganancias";
  static constexpr const char* BALANCEPYGCOMP = "Balance de pérdidas y ganancias comparativo";
  static constexpr const char* LIBRODIARIO = "Libro diario";
  static constexpr const char* LIBROMAYOR = "Libro mayor";
  static constexpr const char* DESGLOSESUBCUENTAS = "Desglose de Subcuentas";
  static constexpr const char* LISTADOSUBCUENTAS = "Listado de subcuentas";
  static constexpr const char* LISTADOEPIGRAFES = "Listado de epígrafes";
  static constexpr const char* LISTADOPRESUPUESTOANUAL = "Presupuesto anual";
  static constexpr const char* LISTADOPRESUPUESTO = "Plan presupuestario";
  static constexpr const char* IVAFACTURARECIBIDA = "Libros de IVA (facturas recibidas)";
  static constexpr const char* IVAFACTURAEMITIDA = "Libros de IVA (facturas emitidas)";
  static constexpr const char* INFEXPEDIENTE_MATRIMONIAL = "Expediente matrimonial";
  static constexpr const char* INFCERTIFICACION_MATRIMONIO = "Certificación de matrimonio";
  static constexpr const char* INFCOMUNICACION_MATRIMONIO = "Comunicación de matrimonio";
  static constexpr const char* INFCUENTAS_GESTION = "Cuentas de gestión";
  static constexpr const char* INFESTADO_EXPEDMATRIMONIO = "Estado de expediente matrimonial";
  static constexpr const char* INFNOTIFICACION_MATRIMONIO = "Notificación de matrimonio";
  static constexpr const char* INFRESUMEN_ESTADISTICO = "Resumen estadístico";
  static constexpr const char* INFSOLICITUD_CONFIRMACION = "Solicitud de confirmación";
  static constexpr const char* INFVOLANTE_MATRIMONIO = "Volante de matrimonio";
  static constexpr const char* INFORMEDONANTESINANULADO = "Donantes con donativo (Sin Anulados)";
  static constexpr const char* INFORMEDONATIVOSINANULADO = "Donativos con donante (Sin Anulados)";
  static constexpr const char* LISTADOMODELO182 = "Listado de Donantes del Modelo 182 de Hacienda";
  static constexpr const char* LISTADODONANTEAMPLIADO = "Donantes con donativos ampliado";
  static constexpr const char* INFRESUMENMATRIMONIAL_NEW =
      "Resumen de matrimonio (Allegato V). Página 2";
};

}  // namespace fidaleon
