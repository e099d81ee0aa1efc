#include "app/Pictures.h"

#include <QLineEdit>
#include <QTemporaryDir>
#include <array>
#include <functional>
#include <ostream>

#include "app/DemoScripts.h"
#include "app/Desk.h"
#include "app/Documents.h"
#include "app/FirstRunWizard.h"
#include "app/MainWindow.h"
#include "app/NewParish.h"
#include "app/PreviewDialog.h"
#include "core/contract/CcNodos.h"
#include "forms/ScriptedUser.h"
#include "qt/Picture.h"
#include "registers/lookup/frmBuscaPadres.h"
#include "registers/lookup/frmDetallePadres.h"
#include "support/Clocks.h"
#include "support/MemorySettings.h"
#include "support/frmInstitucion.h"
#include "support/frmMunicipio.h"
#include "support/frmProvincia.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

constexpr QSize SCREEN(1366, 768);
constexpr int DOCUMENT_DPI = 100;
constexpr const char* USER = "Secretaría";

struct Edition {
  const char* code;
  const char* name;
};
constexpr std::array<Edition, 4> EDITIONS{{
    {FDAPI::cCAplicacion::APP_FIDALEON_MADRID, "madrid"},
    {FDAPI::cCAplicacion::APP_FIDALEON_SANTIAGO, "santiago"},
    {FDAPI::cCAplicacion::APP_FIDALEON_ZARAGOZA, "zaragoza"},
    {FDAPI::cCAplicacion::APP_FIDALEON_MENORCA, "menorca"},
}};

/// Puts pictures into a directory and counts those that could not be made.
class Album {
 public:
  Album(std::filesystem::path directory, std::ostream& out)
      : directory_(std::move(directory)), out_(out) {}

  void add(const std::string& name, const QImage& picture) {
    const std::filesystem::path file = directory_ / (name + ".png");
    const bool saved =
        !picture.isNull() && picture.save(QString::fromStdString(file.string()), "PNG");
    out_ << (saved ? "" : "FALLO: ") << file.filename().string() << std::endl;
    if (!saved) ++failures_;
  }
  void add(const std::string& name, QWidget& widget) { add(name, widget.grab().toImage()); }
  void miss(const std::string& name, const std::string& why) {
    out_ << "FALLO: " << name << ": " << why << std::endl;
    ++failures_;
  }
  bool complete() const { return failures_ == 0; }

 private:
  std::filesystem::path directory_;
  std::ostream& out_;
  int failures_ = 0;
};

std::string plainName(const std::string& caption) {
  std::string plain;
  for (const char c : text::searchKey(caption))
    plain += (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ? c : '-';
  return plain;
}

void photograph(Album& album, forms::Form& form, const std::string& name) {
  forms::TabStrip* strip = nullptr;
  for (forms::Control* control : form.controls())
    if (auto* found = dynamic_cast<forms::TabStrip*>(control)) strip = found;
  if (!strip) return album.add(name, qt::renderToPicture(form, SCREEN));
  const int front = strip->tab();
  for (int tab = 0; tab < strip->tabCount(); ++tab) {
    if (!strip->tabVisible(tab)) continue;
    strip->setTab(tab);
    album.add(name + "-" + std::to_string(tab + 1) + "-" + plainName(strip->caption(tab)),
              qt::renderToPicture(form, SCREEN));
  }
  strip->setTab(front);
}

/// Looks at each form it is shown, and closes it.
class Photographer : public forms::ScriptedUser {
 public:
  explicit Photographer(Album& album) : album_(album) { answerAnything(forms::Answer::Yes); }

  std::string next;                              // name of the next picture
  std::function<void(forms::FormDriver&)> pose;  // what is done to the form before

  void showModal(forms::Form& form) override {
    const std::string name = std::exchange(next, {});
    const auto prepare = std::exchange(pose, {});
    form.focusFirst();
    std::vector<std::string> problems;
    forms::FormDriver driver(form, problems);
    if (prepare) prepare(driver);
    if (!name.empty()) photograph(album_, form, name);
    form.Unload();
  }

 private:
  Album& album_;
};

/// The pictures of one edition, taken on a sample parish of its own.
class EditionSitting {
 public:
  EditionSitting(Album& album, const Edition& edition, const std::filesystem::path& directory)
      : album_(album), edition_(edition), user_(album) {
    NewParish parish;
    parish.name = "San Esteban Protomártir";
    parish.edition = edition.code;
    parish.user = USER;
    parish.content = Content::Sample;
    parish.directory = directory / edition.name;
    createParish(parish, clock_.today());
    desk_ = std::make_unique<Desk>(ParishFiles(parish.directory), USER, user_, settings_, clock_);
  }

  void entryDialogs() {
    cNucleo& n = desk_->nucleo();
    auto& con = desk_->parish();
    const auto& config = desk_->config();
    take("partida-nueva", [&] { n.NuevaPartida(con, config, ENTRIES); });
    take("partida-antigua", [&] { n.AntiguaPartida(con, config, ENTRIES); });
    take("partida-propiedades-libro-nuevo",
         [&] { n.PropiedadesPartida(con, newest(), config, ENTRIES); });
    take("partida-propiedades-libro-antiguo",
         [&] { n.PropiedadesPartida(con, 1, config, ENTRIES); });
    if (const std::int32_t id = one("SELECT IDBautismo FROM Bautismo WHERE Anulada=true"))
      take("partida-anulada", [&] { n.PropiedadesPartida(con, id, config, ENTRIES); });
    take("solicitud-nueva", [&] { n.NuevaSolicitud(con, config, REQUESTS); });
    take("solicitud-propiedades",
         [&] { n.PropiedadesSolicitudes(con, request(), config, REQUESTS); });
  }

  void bookDialogs() {
    for (const Sacramento& s : SACRAMENTOS) {
      user_.pose = [](forms::FormDriver& d) {
        auto& list = d.get<forms::ComboBox>("cboInstituciones");
        if (list.listCount() > 0) d.choose("cboInstituciones", list.list(0));
        d.click("optAntiguo");
      };
      take(plainName(std::string("libro-nuevo-") + s.palabra), [&] {
        desk_->nucleo().NuevoLibro(desk_->parish(), desk_->config(),
                                   std::string("Libros") + s.palabra);
      });
    }
  }

  void bookProperties() {
    const auto open = [this](const char* name, std::int32_t id) {
      take(name, [&] {
        desk_->nucleo().PropiedadesLibro(desk_->parish(), id, desk_->config(), "LibrosBautismo");
      });
    };
    const std::int32_t current = one("SELECT IDLibroBautismo FROM Libro_Bautismo WHERE Nuevo=true");
    open("libro-nuevo-abierto", current);
    open("libro-antiguo", one("SELECT IDLibroBautismo FROM Libro_Bautismo WHERE Nuevo=false"));
    takeRequests();
    take("duplicadas", [&] {
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
    take("pasar-solicitudes",
         [&] { desk_->nucleo().ImportarSolicitudes(desk_->parish(), desk_->config(), REQUESTS); });
  }

  void otherDialogs() {
    take("encargado", [&] {
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
    take("datos-necesarios", [&] { desk_->setUp(); });
  }

  void documents() {
    for (const Document& d : app::documents()) {
      if (findDocument(d.command, edition_.code) != &d) continue;
      const std::int32_t id = d.kind == NodeKind::Requests ? request()
                              : d.kind == NodeKind::Books  ? LAST_BOOK
                                                           : 1;
      user_.pose = acceptKeeper;
      const auto report = makeReport(*desk_, d, id);
      user_.pose = {};
      page(report, d.command);
    }
    user_.pose = [year = lastYear()](forms::FormDriver& d) {
      d.chooseData("cboInstitucion", OWN);
      d.type("adtpAno", year);
      d.choose("cboOrden", "Fecha de Bautismo");
      d.click("cmdBoton(0)");
    };
    const auto duplicate = makeDuplicate(*desk_, DUPLICATE);
    user_.pose = {};
    page(duplicate, "duplicado");
  }

  void windows() {
    MainWindow window(*desk_);
    window.resize(1200, 700);
    for (const char* node : {"PartidasBautismo", "SolicitudesBautismo", "LibrosBautismo",
                             "Duplicadas de bautismo", "Instituciones", "Municipios"}) {
      window.showNode(node);
      album_.add("ventana-" + plainName(node), window);
    }
    window.showNode("PartidasBautismo");
    window.filter().setText("garcia");
    album_.add("ventana-filtrada", window);
    window.showEntriesOf(LAST_BOOK);
    album_.add("ventana-partidas-de-un-libro", window);
    const Document* d = findDocument("certificado", edition_.code);
    user_.pose = acceptKeeper;
    if (auto report = makeReport(*desk_, *d, 1)) {
      PreviewDialog preview(std::move(*report));
      preview.resize(900, 900);
      album_.add("vista-previa", preview);
    }
  }

 private:
  // The first page, and the second of a document that has one.
  void page(const std::optional<paper::Report>& report, const std::string& name) {
    const std::string picture = "documento-" + std::string(edition_.name) + "-" + name;
    if (!report) return album_.miss(picture, "el documento no tiene filas");
    album_.add(picture, report->pageImage(0, DOCUMENT_DPI));
    if (report->pageCount() > 1) album_.add(picture + "-2", report->pageImage(1, DOCUMENT_DPI));
  }

  void take(const std::string& name, const std::function<void()>& operation) {
    const std::string picture = "dialogo-" + std::string(edition_.name) + "-" + name;
    user_.next = picture;
    operation();
    if (!std::exchange(user_.next, {}).empty())
      album_.miss(picture, user_.messages().empty() ? "no se ha abierto el diálogo"
                                                    : user_.messages().back().text);
  }

  template <class Dialog>
  void show(const std::string& name, forms::UserInterface& ui, Settings& settings, Clock& clock,
            store::Connection& con, const FDAPI::cConfig& config, std::int32_t id) {
    Dialog dialog(ui, settings, clock, con, config, id);
    take(name, [&] { dialog.Show(); });
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
    take("busca-padres", [&] { search.Show(); });
    frmDetallePadres details(context);
    details.conBaseDatos = &desk_->parish();
    details.Origen = FDAPI::cCOrigen::LISTAPARTIDASBAUTISMO;
    details.lngID = 1;
    take("detalle-padres", [&] { details.Show(); });
  }

  std::int32_t one(const std::string& sql) {
    const auto rows = desk_->parish().Execute(sql);
    return rows.EOF_() ? 0 : static_cast<std::int32_t>(rows.Fields(0).Value().integer());
  }
  std::int32_t newest() {
    return one("SELECT MAX(IDBautismo) AS ID FROM Bautismo WHERE CodLibro<>0");
  }
  std::string lastYear() {
    return desk_->parish()
        .Execute("SELECT FechaBautismo FROM Bautismo WHERE IDBautismo=" + std::to_string(newest()))
        .text("FechaBautismo")
        .substr(0, 4);
  }
  std::int32_t request() {
    return one("SELECT MAX(IDBautismo) AS ID FROM Bautismo WHERE CodLibro=0");
  }

  static void acceptKeeper(forms::FormDriver& d) { d.click("cmdBoton(0)"); }

  static constexpr const char* ENTRIES = "PartidasBautismo";
  static constexpr const char* REQUESTS = "SolicitudesBautismo";
  static constexpr const char* DUPLICATE = CcNodos::INFDUPLICADASBAUTISMO;
  static constexpr std::int32_t LAST_BOOK = 2;
  static constexpr std::int32_t OWN = 1;  // of the two institutions
  Album& album_;
  Edition edition_;
  Photographer user_;
  support::MemorySettings settings_;
  support::SystemClock clock_;
  std::unique_ptr<Desk> desk_;
};

void firstRunPages(Album& album) {
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
  Album album(directory, out);
  const QTemporaryDir parishes;
  try {
    firstRunPages(album);
    for (const Edition& edition : EDITIONS) {
      EditionSitting sitting(album, edition, parishes.path().toStdString());
      sitting.entryDialogs();
      sitting.documents();
      if (&edition != &EDITIONS.front()) continue;
      sitting.windows();
      sitting.bookDialogs();
      sitting.bookProperties();
      sitting.otherDialogs();
    }
  } catch (const std::exception& e) {
    album.miss("imágenes", e.what());
  }
  return album.complete();
}

}  // namespace fidaleon::app
