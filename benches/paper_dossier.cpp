// rooms: printing sample parish support
// The documents of marriage from their operation to the PDF, on the sample parish of the edition
// whose dossier has most pages.

#include <QApplication>
#include <QTemporaryDir>

#include "benches/Bench.h"
#include "core/contract/FDAPI.h"
#include "forms/ScriptedUser.h"
#include "parish/Desk.h"
#include "parish/NewParish.h"
#include "printing/DocumentReport.h"
#include "sample/SampleParish.h"
#include "support/Clocks.h"
#include "support/MemorySettings.h"

namespace {

using namespace fidaleon;

/// Accepts every form as it stands.
struct Hurried : forms::ScriptedUser {
  Hurried() { answerAnything(forms::Answer::Yes); }
  void showModal(forms::Form& form) override {
    std::vector<std::string> wrong;
    forms::FormDriver(form, wrong).click("cmdBoton(0)");
    form.Unload();
  }
};

std::int32_t newest(store::Connection& parish, const char* condition) {
  return static_cast<std::int32_t>(
      parish
          .Execute(std::string("SELECT MAX(IDMatrimonio) AS ID FROM Matrimonio WHERE ") + condition)
          .integer("ID"));
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QTemporaryDir folder;
  const auto file = [&](const char* name) {
    return std::filesystem::path(folder.filePath(QString::fromLatin1(name)).toStdString());
  };
  Hurried user;
  support::MemorySettings settings;
  support::FixedClock clock{text::Date{2026, 11, 22}, "10:30"};
  app::NewParish parish;
  parish.name = "San Pedro Apóstol";
  parish.edition = FDAPI::cCAplicacion::APP_FIDALEON_MADRID;
  parish.user = "DESPACHO";
  parish.content = app::Content::Sample;
  parish.directory = file("parroquia");
  app::createParish(parish, clock.today(), app::fillSampleParish);
  app::Desk desk(app::ParishFiles(parish.directory), parish.user, user, settings, clock);

  bool complete = true;
  const auto measure = [&](const char* what, const char* command, std::int32_t id, double aim) {
    int pages = 0;
    const double took = bench::milliseconds(20, [&] {
      const auto report =
          app::makeReport(desk, *documento(MATRIMONIO, command, parish.edition), id);
      if (!report) return;
      report->savePdf(file("a.pdf"));
      pages = report->pageCount();
    });
    complete = complete && pages > 0;
    bench::within(std::string(what) + " (páginas: " + std::to_string(pages) + ")", took, aim);
  };
  measure("expediente de matrimonio: operación y PDF", "expediente",
          newest(desk.parish(), "CodLibro=0"), 60);
  measure("certificado de matrimonio: operación y PDF", "certificado",
          newest(desk.parish(), "CodLibro<>0"), 25);
  measure("libro antiguo de matrimonios: operación y PDF", "libro", 1, 250);
  return complete ? 0 : 1;
}
