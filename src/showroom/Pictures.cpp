#include "showroom/Pictures.h"

#include <QLineEdit>
#include <QTableWidget>
#include <QTemporaryDir>
#include <array>

#include "core/contract/CcNodos.h"
#include "core/statements/Sentencia.h"
#include "parish/Desk.h"
#include "parish/NewParish.h"
#include "printing/DocumentReport.h"
#include "registers/common/FormaPartida.h"
#include "registers/lookup/frmBuscaPadres.h"
#include "registers/lookup/frmDetallePadres.h"
#include "sample/SampleParish.h"
#include "showroom/DemoScripts.h"
#include "showroom/PictureAlbum.h"
#include "showroom/PicturesPeople.h"
#include "store/Open.h"
#include "support/Clocks.h"
#include "support/MemorySettings.h"
#include "support/frmInstitucion.h"
#include "support/frmMunicipio.h"
#include "support/frmProvincia.h"
#include "text/Utf8.h"
#include "window/CopiesDialog.h"
#include "window/FirstRunWizard.h"
#include "window/MainWindow.h"
#include "window/PreviewDialog.h"

namespace fidaleon::app {
namespace {

constexpr const char* USER = "Secretaría";

/// A code and the word that tells its pictures apart.
struct Edition {
  std::string code;
  std::string name;
};

std::vector<Edition> everyEdition() {
  std::vector<Edition> all;
  for (const auto& [name, code] : editions()) all.push_back({code, text::lower(name)});
  return all;
}

/// The pictures of one edition, taken on a sample parish of its own.
class EditionSitting {
 public:
  EditionSitting(PictureAlbum& album, const Edition& edition,
                 const std::filesystem::path& directory)
      : album_(album), edition_(edition), user_(album, "dialogo-" + edition.name + "-") {
    NewParish parish;
    parish.name = "San Esteban Protomártir";
    parish.edition = edition.code;
    parish.user = USER;
    parish.content = Content::Sample;
    parish.directory = directory / edition.name;
    createParish(parish, clock_.today(), fillSampleParish);
    desk_ = std::make_unique<Desk>(ParishFiles(parish.directory), USER, user_, settings_, clock_);
  }

  void entryDialogs() {
    cNucleo& n = desk_->nucleo();
    auto& con = desk_->parish();
    const auto& config = desk_->config();
    user_.take("partida-nueva", [&] { n.NuevaPartida(con, config, ENTRIES); });
    user_.take("partida-antigua", [&] { n.AntiguaPartida(con, config, ENTRIES); });
    user_.take("partida-propiedades-libro-nuevo",
               [&] { n.PropiedadesPartida(con, newest(), config, ENTRIES); });
    user_.take("partida-propiedades-libro-antiguo",
               [&] { n.PropiedadesPartida(con, 1, config, ENTRIES); });
    if (const std::int32_t id = one("SELECT IDBautismo FROM Bautismo WHERE Anulada=true"))
      user_.take("partida-anulada", [&] { n.PropiedadesPartida(con, id, config, ENTRIES); });
    user_.take("solicitud-nueva", [&] { n.NuevaSolicitud(con, config, REQUESTS); });
    user_.take("solicitud-propiedades",
               [&] { n.PropiedadesSolicitudes(con, request(), config, REQUESTS); });
  }

  void bookDialogs() {
    for (const Sacramento& s : SACRAMENTOS) {
      user_.pose = [](forms::FormDriver& d) {
        auto& list = d.get<forms::ComboBox>("cboInstituciones");
        if (list.listCount() > 0) d.choose("cboInstituciones", list.list(0));
        d.click("optAntiguo");
      };
      user_.take(plainName(std::string("libro-nuevo-") + s.palabra), [&] {
        desk_->nucleo().NuevoLibro(desk_->parish(), desk_->config(),
                                   std::string("Libros") + s.palabra);
      });
    }
  }

  void bookProperties() {
    const auto open = [this](const char* name, std::int32_t id) {
      user_.take(name, [&] {
        desk_->nucleo().PropiedadesLibro(desk_->parish(), id, desk_->config(), "LibrosBautismo");
      });
    };
    const std::int32_t current = one("SELECT IDLibroBautismo FROM Libro_Bautismo WHERE Nuevo=true");
    open("libro-nuevo-abierto", current);
    open("libro-antiguo", one("SELECT IDLibroBautismo FROM Libro_Bautismo WHERE Nuevo=false"));
    takeRequests();
    user_.take("duplicadas", [&] {
      std::string order;
      desk_->nucleo().ImprimirDuplicadas(desk_->parish(), desk_->reports(), DUPLICATE, order);
    });
    desk_->parish().Execute("UPDATE Libro_Bautismo SET Cerrado=true WHERE IDLibroBautismo=" +
                            std::to_string(current));
    open("libro-nuevo-cerrado", current);
    desk_->parish().Execute("UPDATE Libro_Bautismo SET Cerrado=false WHERE IDLibroBautismo=" +
                            std::to_string(current));
  }

  void takeRequests() {
    user_.pose = [](forms::FormDriver& d) {
      d.chooseData("cboInstitucion", OWN);
      d.tab("mstSolicitudes", 1);
      auto& requests = d.get<forms::ListBox>("lstSolicitudes(0)");
      if (requests.listCount() > 1) requests.setSelected(1, true);
      d.click("cmdMover(0)");
    };
    user_.take("pasar-solicitudes", [&] {
      desk_->nucleo().ImportarSolicitudes(desk_->parish(), desk_->config(), REQUESTS);
    });
  }

  void otherDialogs() {
    user_.take("encargado", [&] {
      std::string date, keeper;
      desk_->nucleo().SelecEncargado(desk_->parish(), "Bautismo", 1, date, keeper);
    });
    Entorno& e = desk_->entorno();
    auto& con = desk_->parish();
    const auto& config = desk_->config();
    show<support::frmInstitucion>("institucion", e.ui, e.settings, e.clock, con, config, 1);
    show<support::frmProvincia>("provincia", e.ui, e.settings, e.clock, con, config, 28);
    show<support::frmMunicipio>("municipio", e.ui, e.settings, e.clock, con, config, 1);
    familyDialogs();
    con.Execute("UPDATE Institucion SET Parroco=\"\", Diocesis=\"\", Vicaria=\"\"");
    user_.take("datos-necesarios", [&] { desk_->setUp(); });
  }

  void people() { photographPeople(album_, user_, *desk_); }

  void copies() {
    const SafetyCopies kept(desk_->files().directory);
    CopiesDialog none(kept.list(), kept.directory());
    album_.add("copias-ninguna", none);
    Moment moment{clock_.today(), 9, 15, 40};
    for (const char* before :
         {"Eliminar en Partidas, Bautismo", "Eliminar en Colaboradores", "Eliminar en Padrón"}) {
      kept.make(desk_->parish(), before, moment);
      ++moment.hour;
    }
    store::backupDatabase(desk_->parish(), kept.directory() / "parroquia.copia");
    CopiesDialog some(kept.list(), kept.directory());
    album_.add("copias", some);
  }

  void documents() {
    for (const Documento& d : documentos()) {
      if (documento(*d.sacramento, d.orden, edition_.code) != &d) continue;
      const std::int32_t id = sampleOf(d);
      if (id == 0) continue;
      user_.pose = d.clase == ClaseDocumento::Duplicada ? chooseDuplicate(d) : acceptKeeper;
      const auto report = makeReport(*desk_, d, id);
      user_.pose = {};
      album_.add("documento-" + std::string(edition_.name) + "-" + plainName(d.plantilla), report);
    }
  }

  void windows() {
    MainWindow window(*desk_);
    window.resize(1200, 700);
    for (const char* node :
         {"PartidasBautismo", "SolicitudesBautismo", "LibrosBautismo", "Duplicadas de bautismo",
          "Instituciones", "Municipios", CcNodos::PADRON, CcNodos::COLABORADOR, CcNodos::ACTIVIDAD,
          CcNodos::CARGO, "Tareas"}) {
      window.showNode(node);
      album_.add("ventana-" + plainName(node), window);
    }
    window.showNode("PartidasBautismo");
    window.filter().setText("garcia");
    album_.add("ventana-filtrada", window);
    window.showEntriesOf(BAUTISMO, LAST_BOOK);
    album_.add("ventana-partidas-de-un-libro", window);
    const Documento* d = documento(BAUTISMO, "certificado", edition_.code);
    user_.pose = acceptKeeper;
    if (auto report = makeReport(*desk_, *d, 1)) {
      PreviewDialog preview(std::move(*report));
      preview.resize(900, 900);
      album_.add("vista-previa", preview);
    }
  }

 private:
  template <class Dialog>
  void show(const std::string& name, forms::UserInterface& ui, Settings& settings, Clock& clock,
            store::Connection& con, const FDAPI::cConfig& config, std::int32_t id) {
    Dialog dialog(ui, settings, clock, con, config, id);
    user_.take(name, [&] { dialog.Show(); });
  }

  void familyDialogs() {
    Contexto context(desk_->entorno());
    context.gobjConfig = &desk_->config();
    frmBuscaPadres search(context);
    search.conBaseDatos = &desk_->parish();
    search.Origen = FDAPI::cCOrigen::LISTAPARTIDASBAUTISMO;
    auto set = desk_->parish().Execute(
        "SELECT IDBautismo, PrimerApellido, SegundoApellido, CodPadres, CodMadres, CodMatrimonio "
        "FROM Bautismo, Bautismo_Hijo WHERE CodBautismo=IDBautismo AND IDBautismo<4");
    for (; !set.EOF_(); set.MoveNext()) {
      FilaBusqueda row;
      row.IDBautismo = static_cast<std::int32_t>(set.integer("IDBautismo"));
      row.PrimerApellido = set.text("PrimerApellido");
      row.SegundoApellido = set.text("SegundoApellido");
      row.CodPadres = static_cast<std::int32_t>(set.integer("CodPadres"));
      row.CodMadres = static_cast<std::int32_t>(set.integer("CodMadres"));
      row.CodMatrimonio = static_cast<std::int32_t>(set.integer("CodMatrimonio"));
      search.strApellidos = row.PrimerApellido + " " + row.SegundoApellido;
      search.filas.push_back(row);
    }
    user_.take("busca-padres", [&] { search.Show(); });
    frmDetallePadres details(context);
    details.conBaseDatos = &desk_->parish();
    details.Origen = FDAPI::cCOrigen::LISTAPARTIDASBAUTISMO;
    details.lngID = 1;
    user_.take("detalle-padres", [&] { details.Show(); });
  }

  std::int32_t one(const std::string& sql) {
    const auto rows = desk_->parish().Execute(sql);
    return rows.EOF_() ? 0 : static_cast<std::int32_t>(rows.Fields(0).Value().integer());
  }
  std::int32_t newest() {
    return one("SELECT MAX(IDBautismo) AS ID FROM Bautismo WHERE CodLibro<>0");
  }
  std::int32_t request() {
    return one("SELECT MAX(IDBautismo) AS ID FROM Bautismo WHERE CodLibro=0");
  }

  /// The key of what a document can be of here; 0 when there is none.
  std::int32_t sampleOf(const Documento& d) {
    const Sacramento& s = *d.sacramento;
    switch (d.clase) {
      case ClaseDocumento::Solicitud:
        return one(sentencia(s, "SELECT MAX({IDPartida}) AS ID FROM {Partidas} WHERE CodLibro=0"));
      case ClaseDocumento::Libro:
        return one(sentencia(s, "SELECT MAX(CodLibro) AS ID FROM {Partidas}"));
      case ClaseDocumento::SinLibro:
        return 0;
      default:
        return one(sentencia(s, "SELECT MIN({IDPartida}) AS ID FROM {Partidas} WHERE CodLibro<>0"));
    }
  }
  /// The last year that has entries.
  std::string yearOf(const Sacramento& s) {
    const FormaPartida& form = *formaPartida(s);
    const std::string table = &s == &BAUTISMO ? s.tablaPartidas : s.palabra + std::string("_Datos");
    const auto last =
        desk_->parish().Execute(std::string("SELECT MAX(") + form.fecha + ") AS Dia FROM " + table +
                                " WHERE " + form.fecha + "<\"3\"");
    return last.text("Dia").substr(0, 4);
  }
  std::function<void(forms::FormDriver&)> chooseDuplicate(const Documento& document) {
    return [year = yearOf(*document.sacramento)](forms::FormDriver& d) {
      d.chooseData("cboInstitucion", OWN);
      d.type("adtpAno", year);
      d.get<forms::ComboBox>("cboOrden").setListIndex(0);
      d.click("cmdBoton(0)");
    };
  }
  static void acceptKeeper(forms::FormDriver& d) { d.click("cmdBoton(0)"); }

  static constexpr const char* ENTRIES = "PartidasBautismo";
  static constexpr const char* REQUESTS = "SolicitudesBautismo";
  static constexpr const char* DUPLICATE = CcNodos::INFDUPLICADASBAUTISMO;
  static constexpr std::int32_t LAST_BOOK = 2;
  static constexpr std::int32_t OWN = 1;  // of the two institutions
  PictureAlbum& album_;
  Edition edition_;
  Photographer user_;
  support::MemorySettings settings_;
  support::SystemClock clock_;
  std::unique_ptr<Desk> desk_;
};

void firstRunPages(PictureAlbum& album) {
  NewParish proposal;
  proposal.user = USER;
  proposal.province = 28;
  proposal.name = "San Esteban Protomártir";
  proposal.town = demo::TOWN;
  proposal.directory = "/home/parroquia/fidaleon";
  FirstRunWizard wizard(proposal);
  wizard.show();
  album.add("primera-vez-1", wizard);
  wizard.next();
  album.add("primera-vez-2", wizard);
}

}  // namespace

bool renderPictures(const std::filesystem::path& directory, std::ostream& out) {
  std::filesystem::create_directories(directory);
  PictureAlbum album(directory, out);
  const QTemporaryDir parishes;
  try {
    firstRunPages(album);
    const std::vector<Edition> all = everyEdition();
    for (const Edition& edition : all) {
      EditionSitting sitting(album, edition, parishes.path().toStdString());
      sitting.entryDialogs();
      sitting.documents();
      if (&edition != &all.front()) continue;
      sitting.windows();
      sitting.bookDialogs();
      sitting.bookProperties();
      sitting.people();
      sitting.copies();
      sitting.otherDialogs();
    }
  } catch (const std::exception& e) {
    album.miss("imágenes", e.what());
  }
  return album.complete();
}

}  // namespace fidaleon::app
