#include "showroom/Pictures.h"

#include <QLineEdit>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <array>

#include "core/contract/CcNodos.h"
#include "parish/Desk.h"
#include "parish/NewParish.h"
#include "printing/DocumentReport.h"
#include "printing/Templates.h"
#include "sample/SampleParish.h"
#include "showroom/DemoScripts.h"
#include "showroom/PictureAlbum.h"
#include "showroom/PicturesPeople.h"
#include "showroom/PicturesRegisters.h"
#include "store/Open.h"
#include "support/Clocks.h"
#include "support/MemorySettings.h"
#include "support/frmInstitucion.h"
#include "support/frmMunicipio.h"
#include "support/frmProvincia.h"
#include "text/Utf8.h"
#include "window/AboutDialog.h"
#include "window/CopiesDialog.h"
#include "window/FirstRunWizard.h"
#include "window/MainWindow.h"
#include "window/MoveDialog.h"
#include "window/PreferencesDialog.h"
#include "window/PreviewDialog.h"
#include "window/ServerDialog.h"
#include "window/StartDialog.h"
#include "window/help/HelpTopics.h"
#include "window/help/HelpWindow.h"

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

  RegisterPictures registers() { return {album_, user_, *desk_, edition_.name}; }

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
    con.Execute("UPDATE Institucion SET Parroco=\"\", Diocesis=\"\", Vicaria=\"\"");
    user_.take("datos-necesarios", [&] { desk_->setUp(); });
  }

  void people() { photographPeople(album_, user_, *desk_); }

  void copies() {
    const SafetyCopies kept(desk_->files().directory);
    CopiesDialog none(kept);
    album_.add("copias-ninguna", none);
    Moment moment{clock_.today(), 9, 15, 40};
    for (const char* before :
         {"Eliminar en Partidas, Bautismo", "Eliminar en Colaboradores", "Eliminar en Padrón"}) {
      kept.make(desk_->parish(), before, moment);
      ++moment.hour;
    }
    store::backupDatabase(desk_->parish(), kept.directory() / "parroquia.copia");
    CopiesDialog some(kept);
    album_.add("copias", some);
  }

  void windows() {
    MainWindow window(*desk_);
    window.resize(1200, 700);
    for (const char* node :
         {"PartidasBautismo", "SolicitudesBautismo", "LibrosBautismo", "PartidasConfirmacion",
          "SolicitudesConfirmacion", "PartidasMatrimonio", "SolicitudesMatrimonio",
          "PartidasDefuncion", CcNodos::INFDUPLICADASBAUTISMO,
          CcNodos::INFNOTIFICACIONCONFIRMACIONPARR, "Instituciones", "Municipios", CcNodos::PADRON,
          CcNodos::COLABORADOR, CcNodos::ACTIVIDAD, CcNodos::CARGO, "Tareas"}) {
      window.showNode(node);
      album_.add("ventana-" + plainName(node), window);
    }
    window.showNode("PartidasBautismo");
    window.filter().setText("garcia");
    album_.add("ventana-filtrada", window);
    window.showEntriesOf(BAUTISMO, LAST_BOOK);
    album_.add("ventana-partidas-de-un-libro", window);
    const Documento* d = documento(BAUTISMO, "certificado", edition_.code);
    ownWindows();
    user_.pose = [](forms::FormDriver& keeper) { keeper.click("cmdBoton(0)"); };
    if (auto report = makeReport(*desk_, *d, 1)) {
      PreviewDialog preview(std::move(*report));
      preview.resize(900, 900);
      album_.add("vista-previa", preview);
    }
  }

 private:
  /// Those of the program itself, tab by tab.
  void ownWindows() {
    ParishDoor door(settings_, clock_);
    PreferencesDialog preferences(*desk_, door);
    AboutDialog about(*desk_);
    for (const auto& [name, dialog] :
         {std::pair<const char*, QDialog*>{"preferencias", &preferences}, {"acerca-de", &about}}) {
      auto* pages = dialog->findChild<QTabWidget*>();
      for (int page = 0; page < pages->count(); ++page) {
        pages->setCurrentIndex(page);
        album_.add(name + std::string("-") + std::to_string(page + 1), *dialog);
      }
    }
    StartDialog start(door);
    album_.add("comienzo", start);
    ServerDialog server("/home/parroquia/fidaleon");
    album_.add("conectar-servidor", server);
    MoveDialog move(*desk_, "/home/parroquia/fidaleon");
    album_.add("trasladar", move);
    const Manual manual(manualDirectory());
    HelpWindow help(manual);
    help.show(*helpPlace("frmPartidaBautismo"));
    album_.add("ayuda", help);
    help.search("borrador");
    album_.add("ayuda-busqueda", help);
  }

  template <class Dialog>
  void show(const std::string& name, forms::UserInterface& ui, Settings& settings, Clock& clock,
            store::Connection& con, const FDAPI::cConfig& config, std::int32_t id) {
    Dialog dialog(ui, settings, clock, con, config, id);
    user_.take(name, [&] { dialog.Show(); });
  }

  static constexpr std::int32_t LAST_BOOK = 2;
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

/// Everything but the documents; the pages of the first run are those of none.
void everyWindow(EditionSitting& sitting) {
  sitting.windows();
  sitting.registers().others();
  sitting.people();
  sitting.copies();
  sitting.otherDialogs();
}

}  // namespace

bool lookAtWindows(const PictureAlbum::Look& look, std::ostream& out) {
  PictureAlbum album(look, out);
  const QTemporaryDir parishes;
  firstRunPages(album);
  EditionSitting sitting(album, everyEdition().front(), parishes.path().toStdString());
  sitting.registers().entries();
  everyWindow(sitting);
  return album.complete();
}

bool renderPictures(const std::filesystem::path& directory, std::ostream& out) {
  std::filesystem::create_directories(directory);
  PictureAlbum album(directory, out);
  const QTemporaryDir parishes;
  try {
    firstRunPages(album);
    const std::vector<Edition> all = everyEdition();
    for (const Edition& edition : all) {
      EditionSitting sitting(album, edition, parishes.path().toStdString());
      sitting.registers().entries();
      sitting.registers().documents();
      if (&edition == &all.front()) everyWindow(sitting);
    }
  } catch (const std::exception& e) {
    album.miss("imágenes", e.what());
  }
  return album.complete();
}

}  // namespace fidaleon::app
