#include <vector>

#include "core/dialogs/Guard.h"
#include "documents/CensoRows.h"
#include "documents/CensoStatements.h"
#include "documents/ProgresoInforme.h"
#include "documents/cInformes.h"
#include "documents/frmInfActividad.h"
#include "documents/frmInfAgenda.h"
#include "store/Transaction.h"
#include "text/Utf8.h"

namespace fidaleon {

using documents::Pertenencia;

namespace {

/// People to be listed one after the other under an institution.
struct Personas {
  documents::InstitucionInforme institucion;
  Pertenencia pertenencia;
  store::Recordset registros;
};

/// All of them before the first row is written: how many there are is told first.
std::vector<Personas> leerPersonas(FDAPI::Conexion& conFidaleon, store::Recordset& instituciones,
                                   const std::string& sqlPersonas, bool blnSinActividad) {
  std::vector<Personas> todas;
  for (; !instituciones.EOF_(); instituciones.MoveNext()) {
    const documents::InstitucionInforme institucion(instituciones);
    todas.push_back({institucion, Pertenencia::CON_ACTIVIDAD,
                     conFidaleon.Execute(documents::deInstitucion(sqlPersonas, institucion.id))});
    if (blnSinActividad)
      todas.push_back({institucion, Pertenencia::SIN_ACTIVIDAD,
                       conFidaleon.Execute(documents::sentenciaSinActividad(institucion.id))});
  }
  return todas;
}

std::int64_t cuenta(const std::vector<Personas>& todas) {
  std::int64_t total = 0;
  for (const Personas& personas : todas) total += personas.registros.RecordCount();
  return total;
}

}  // namespace

void cInformes::elegirInforme(const char* miembro, FDAPI::Conexion& conFidaleon,
                              FDAPI::Conexion& conInformes, FDAPI::cCOrigen modo) {
  guarded(contexto_, "cInformes", miembro, [&] {
    frmInfActividad dialogo(contexto_);
    dialogo.conFidaleon = &conFidaleon;
    dialogo.conInformes = &conInformes;
    dialogo.modo = modo;
    dialogo.Show();
  });
}

void cInformes::SelInfActividad(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes) {
  elegirInforme("SelInfActividad", conFidaleon, conInformes, FDAPI::cCOrigen::ACTIVIDAD);
}

void cInformes::SelInfColaborador(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes) {
  elegirInforme("SelInfColaborador", conFidaleon, conInformes, FDAPI::cCOrigen::COLABORADOR);
}

void cInformes::SelInfColaboradorExt(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes) {
  elegirInforme("SelInfColaboradorExt", conFidaleon, conInformes, FDAPI::cCOrigen::COLABORADOREXT);
}

void cInformes::InformeActividad(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                 FDAPI::cProgreso& abpInformes) {
  guarded(contexto_, "cInformes", "InformeActividad", [&] {
    const forms::Hourglass hourglass(contexto_.ui());
    store::Recordset grupos = conFidaleon.Execute(documents::sentenciaActividades());
    RellenarInformeActividad(conInformes, grupos, abpInformes);
  });
}

void cInformes::informarColaboradores(const char* miembro, FDAPI::Conexion& conFidaleon,
                                      FDAPI::Conexion& conInformes, FDAPI::cProgreso& progreso) {
  guarded(contexto_, "cInformes", miembro, [&] {
    const forms::Hourglass hourglass(contexto_.ui());
    store::Recordset instituciones = conFidaleon.Execute(documents::sentenciaInstituciones());
    RellenarInformeColaborador(conFidaleon, conInformes, instituciones,
                               documents::sentenciaPersonas(), true, progreso);
  });
}

void cInformes::InformeColaborador(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                   FDAPI::cProgreso& abpInformes) {
  informarColaboradores("InformeColaborador", conFidaleon, conInformes, abpInformes);
}

void cInformes::InformeColaboradorExt(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                      FDAPI::cProgreso& abpInformes) {
  informarColaboradores("InformeColaboradorExt", conFidaleon, conInformes, abpInformes);
}

bool cInformes::RellenarInformeActividad(FDAPI::Conexion& conInformes, store::Recordset& grupos,
                                         FDAPI::cProgreso& progreso) {
  return guarded(contexto_, "cInformes", "RellenarInformeActividad", [&] {
    store::Transaction transaction(conInformes);
    documents::ProgresoInforme marcha(progreso, grupos.RecordCount());
    for (; !grupos.EOF_(); grupos.MoveNext()) {
      documents::InsertarFilaActividad(conInformes, grupos);
      marcha.avanzar();
    }
    marcha.terminar();
    transaction.commit();
  });
}

bool cInformes::RellenarInformeColaborador(FDAPI::Conexion& conFidaleon,
                                           FDAPI::Conexion& conInformes,
                                           store::Recordset& instituciones,
                                           const std::string& sqlPersonas, bool blnSinActividad,
                                           FDAPI::cProgreso& progreso) {
  return guarded(contexto_, "cInformes", "RellenarInformeColaborador", [&] {
    store::Transaction transaction(conInformes);
    auto todas = leerPersonas(conFidaleon, instituciones, sqlPersonas, blnSinActividad);
    documents::Lookups lookups(contexto_, conFidaleon);
    documents::ProgresoInforme marcha(progreso, cuenta(todas));
    for (auto& [institucion, pertenencia, personas] : todas)
      for (; !personas.EOF_(); personas.MoveNext()) {
        documents::InsertarFilaColaborador(conInformes, personas, institucion, pertenencia,
                                           lookups);
        marcha.avanzar();
      }
    marcha.terminar();
    transaction.commit();
  });
}

void cInformes::SelInfTareasAgenda(FDAPI::Conexion& conBaseDatos,
                                   FDAPI::Conexion& conBaseInformes) {
  guarded(contexto_, "cInformes", "SelInfTareasAgenda", [&] {
    frmInfAgenda dialogo(contexto_);
    dialogo.conBaseDatos = &conBaseDatos;
    dialogo.conInformes = &conBaseInformes;
    dialogo.Show();
  });
}

void cInformes::InformeAgenda(FDAPI::Conexion& conBaseDatos, FDAPI::Conexion& conBaseInformes,
                              FDAPI::cProgreso& abpProgreso) {
  guarded(contexto_, "cInformes", "InformeAgenda", [&] {
    const forms::Hourglass hourglass(contexto_.ui());
    const std::string ano = text::left(contexto_.hoy(), 4);
    store::Recordset tareas =
        conBaseDatos.Execute(documents::sentenciaTareas(ano + "0101", ano + "1231"));
    conBaseInformes.BeginTrans();
    try {
      documents::ProgresoInforme marcha(abpProgreso, tareas.RecordCount());
      for (; !tareas.EOF_(); tareas.MoveNext()) {
        documents::InsertarFilaTarea(conBaseInformes, tareas);
        marcha.avanzar();
      }
      marcha.terminar();
    } catch (const forms::Cancelled&) {
      conBaseInformes.RollbackTrans();
      throw;
    }
    conBaseInformes.CommitTrans();
  });
}

}  // namespace fidaleon
