#include "showroom/PicturesPeople.h"

#include "census/activities/frmActividad.h"
#include "census/activities/frmActividadGrupos.h"
#include "census/activities/frmCargo.h"
#include "census/collaborators/frmColaborador.h"
#include "census/collaborators/frmColaboradorActividad.h"
#include "census/persons/frmPadron.h"
#include "census/search/frmMensaje.h"
#include "census/search/frmPadronBusqueda.h"
#include "census/search/frmPadronDetalles.h"
#include "census/search/frmPadronImportar.h"
#include "census/search/frmPadronNotas.h"
#include "documents/frmInfActividad.h"
#include "printing/DocumentReport.h"
#include "support/frmTarea.h"

namespace fidaleon::app {
namespace {

using FDAPI::cCOperacion;
using FDAPI::cCOrigen;
using forms::FormDriver;

forms::ReadOnly inUse() {
  return {
      "Solo se puede consultar: lo tiene Luis, en el equipo SACRISTIA, desde el 22/11/2026 a "
      "las 10:30.",
      [] { return std::nullopt; }};
}

std::string at(const char* name, int index) {
  return std::string(name) + "(" + std::to_string(index) + ")";
}

class People {
 public:
  People(PictureAlbum& album, Photographer& user, Desk& desk)
      : album_(album), user_(user), desk_(desk), context_(desk.entorno()) {
    context_.gobjConfig = &desk.config();
  }

  void run() {
    persons();
    searches();
    notes();
    collaborators();
    activities();
    offices();
    tasks();
    reportDialogs();
    for (const ListReport& r : listReports())
      album_.add("documento-" + plainName(r.templateName),
                 makeListReport(desk_, r, Extent::Entire));
  }

 private:
  void persons() {
    user_.take("persona-nueva", [&] { nucleo().NuevoEmpadronado(parish(), config()); });
    user_.take("persona", [&] { nucleo().EditaEmpadronado(parish(), buried(), config()); });
    show<frmPadron>("persona-en-uso", [&](frmPadron& d) {
      d.conBaseDatos = &parish();
      d.Operacion = cCOperacion::EDITAR;
      d.IDPadron = withNotes();
      d.Load();
      d.setReadOnly(inUse());
    });
  }

  void searches() {
    store::Recordset family = parish().Execute(
        "SELECT * FROM Padron WHERE PrimerApellido=" +
        entreComillas(parish()
                          .Execute("SELECT PrimerApellido, COUNT(IDPadron) AS N FROM Padron GROUP "
                                   "BY PrimerApellido ORDER BY COUNT(IDPadron) DESC")
                          .text("PrimerApellido")));
    show<frmPadronBusqueda>("coincidencias", [&](frmPadronBusqueda& d) {
      d.conBaseDatos = &parish();
      d.registros = &family;
      d.Origen = cCOrigen::PADRON;
      d.PrimerApellido = family.text("PrimerApellido");
    });
    show<frmPadronDetalles>("detalles", [&](frmPadronDetalles& d) {
      d.conBaseDatos = &parish();
      d.IDPadron = withNotes();
    });
    show<frmMensaje>("dni-repetido", [&](frmMensaje& d) {
      d.conBaseDatos = &parish();
      d.Origen = cCOrigen::PADRON;
    });
    for (const auto& [name, origin] : {std::pair{"busqueda-empadronado", cCOrigen::PADRON},
                                       std::pair{"busqueda-colaborador", cCOrigen::COLABORADOR}})
      show<frmPadronImportar>(name, [&](frmPadronImportar& d) {
        d.conBaseDatos = &parish();
        d.Origen = origin;
      });
  }

  void notes() {
    user_.pose = [this](FormDriver& d) {
      d.tab("mstPadron", frmPadron::TAB_NOTAS);
      d.row("msgNotas", 1);
      user_.next = "nota";
      d.click(at("cmdNotas", frmPadron::MODIFICAR));
      user_.next = "nota-nueva";
      d.click(at("cmdNotas", frmPadron::AGREGAR));
    };
    user_.take("persona-con-notas",
               [&] { nucleo().EditaEmpadronado(parish(), withNotes(), config()); });
  }

  void collaborators() {
    parish().Execute("INSERT INTO Padron_Actividad (CodPadron,CodGrupo,CodCargo) VALUES (" +
                     std::to_string(busiest()) + "," +
                     std::to_string(one("SELECT MAX(IDGrupo) AS ID FROM Grupo")) + "," +
                     std::to_string(one("SELECT IDCargo FROM Cargo WHERE Nombre=\"Lector\"")) +
                     ")");
    user_.take("colaborador-nuevo", [&] { nucleo().NuevoColaborador(parish(), config()); });
    user_.take("colaborador-sin-actividades",
               [&] { nucleo().NuevoColaborador(parish(), config(), true); });
    user_.pose = [this](FormDriver& d) {
      d.tab("mstColaborador", frmColaborador::TAB_ACTIVIDADES);
      d.row("msgActividades", 1);
      user_.next = "colaborador-actividad";
      d.click(at("cmdActividad", frmColaborador::MODIFICAR));
      user_.next = "colaborador-actividad-nueva";
      d.click(at("cmdActividad", frmColaborador::AGREGAR));
    };
    user_.take("colaborador", [&] { nucleo().EditaColaborador(parish(), busiest(), config()); });
    show<frmColaborador>("colaborador-en-uso", [&](frmColaborador& d) {
      d.conBaseDatos = &parish();
      d.Operacion = cCOperacion::EDITAR;
      d.IDPadron = busiest();
      d.Load();
      d.setReadOnly(inUse());
    });
  }

  void activities() {
    user_.take("actividad-nueva", [&] { nucleo().NuevaActividad(parish(), config()); });
    user_.take("actividad-sin-grupos", [&] { nucleo().NuevaActividad(parish(), config(), true); });
    user_.pose = [this](FormDriver& d) {
      d.tab("mstActividad", frmActividad::TAB_GRUPOS);
      d.row("msgGrupos", 1);
      user_.next = "grupo";
      d.click(at("cmdActividad", frmActividad::MODIFICAR));
      user_.next = "grupo-nuevo";
      d.click(at("cmdActividad", frmActividad::AGREGAR));
    };
    user_.take("actividad", [&] {
      nucleo().EditaActividad(parish(), one("SELECT MIN(IDActividad) AS ID FROM Actividad"),
                              config());
    });
  }

  void offices() {
    user_.take("cargo-nuevo", [&] { nucleo().NuevoCargo(parish(), config()); });
    user_.take("cargo", [&] {
      nucleo().EditaCargo(parish(), one("SELECT MIN(IDCargo) AS ID FROM Cargo"), config());
    });
    show<frmCargo>("cargo-que-se-elige", [&](frmCargo& d) {
      d.conBaseDatos = &parish();
      d.Origen = cCOrigen::ACTIVIDAD;
    });
  }

  void tasks() {
    for (const auto& [name, id] :
         {std::pair{"tarea-nueva", 0},
          std::pair{"tarea", one("SELECT MIN(IDTarea) AS ID FROM Tareas")}}) {
      Entorno& e = desk_.entorno();
      support::frmTarea dialog(e.ui, e.settings, e.clock, parish(), config(), id);
      user_.take(name, [&] { dialog.Show(); });
    }
  }

  void reportDialogs() {
    user_.pose = [](FormDriver& d) {
      d.get<forms::ListBox>(at("lstListas", frmInfActividad::DISPONIBLES)).setSelected(0, true);
      d.click(at("cmdMover", ListaDoble::ELEGIR));
    };
    user_.take("informe-actividades", [&] { nucleo().SelInfActividad(parish(), desk_.reports()); });
    user_.pose = chooseGroups;
    user_.take("informe-colaboradores",
               [&] { nucleo().SelInfColaborador(parish(), desk_.reports()); });
    user_.pose = chooseGroups;
    user_.take("informe-colaboradores-extendido",
               [&] { nucleo().SelInfColaboradorExt(parish(), desk_.reports()); });
    user_.take("informe-tareas", [&] { nucleo().SelInfTareasAgenda(parish(), desk_.reports()); });
  }

  static void chooseGroups(FormDriver& d) {
    d.chooseData("cboInstitucion", OWN);
    auto& activities = d.get<forms::ComboBox>("cboActividad");
    d.choose("cboActividad", activities.list(0));
    d.get<forms::ListBox>(at("lstListas", frmInfActividad::DISPONIBLES)).setSelected(0, true);
    d.click(at("cmdMover", ListaDoble::ELEGIR));
  }

  /// A dialog that no command opens by itself.
  template <class Dialog, class Prepare>
  void show(const std::string& name, const Prepare& prepare) {
    Dialog dialog(context_);
    prepare(dialog);
    user_.take(name, [&] { dialog.Show(); });
  }

  std::int32_t one(const std::string& sql) {
    const auto rows = parish().Execute(sql);
    return rows.EOF_() ? 0 : static_cast<std::int32_t>(rows.Fields(0).Value().integer());
  }
  std::int32_t buried() {
    return one("SELECT CodPadron FROM Padron_Defuncion WHERE FechaDefuncion<>\"\"");
  }
  std::int32_t withNotes() { return one("SELECT CodPadron FROM Padron_NotasPersonales"); }
  std::int32_t busiest() {
    return one(
        "SELECT CodPadron, COUNT(CodGrupo) AS N FROM Padron_Actividad GROUP BY CodPadron "
        "ORDER BY COUNT(CodGrupo) DESC");
  }

  cNucleo& nucleo() { return desk_.nucleo(); }
  store::Connection& parish() { return desk_.parish(); }
  const FDAPI::cConfig& config() { return desk_.config(); }

  static constexpr std::int32_t OWN = 1;  // of the two institutions
  PictureAlbum& album_;
  Photographer& user_;
  Desk& desk_;
  Contexto context_;
};

}  // namespace

void photographPeople(PictureAlbum& album, Photographer& user, Desk& desk) {
  People(album, user, desk).run();
}

}  // namespace fidaleon::app
