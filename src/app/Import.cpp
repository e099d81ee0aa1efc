#include "app/Import.h"

#include <iostream>

#include "parish/Preferences.h"
#include "parish/legacy/ImportRun.h"
#include "support/Clocks.h"
#include "support/MemorySettings.h"

namespace fidaleon::app {
namespace {

/// Hears what the library says, and answers nothing but that it was heard.
class Console : public forms::UserInterface {
 public:
  void showModal(forms::Form&) override {}
  forms::Answer showMessage(const forms::Message& message) override {
    if (message.buttons != forms::MsgButtons::Ok) return forms::Answer::No;
    std::cerr << message.text << "\n";
    if (!message.below.empty()) std::cerr << message.below << "\n";
    return forms::Answer::Ok;
  }
  std::optional<std::string> inputBox(const std::string&, const std::string&,
                                      const std::string&) override {
    return std::nullopt;
  }
  void beep() override {}
  void setHourglass(bool) override {}
  std::string clipboardText() const override { return {}; }
  void setClipboardText(const std::string&) override {}
  bool hasPrinter() const override { return false; }
  double printerTextWidth(const std::string&, const std::string&) const override { return 0; }
  void progressOpen(std::int64_t, const std::string&) override {}
  void progressMove(std::int64_t) override {}
  void progressClose() override {}
};

class Progress : public FDAPI::cProgreso {
 public:
  void Cargar(std::int64_t count, const std::string& what, int, int) override {
    std::cerr << what << ": " << count << (count == 1 ? " libro\n" : " libros\n");
  }
  void setValue(std::int64_t) override {}
};

}  // namespace

int importRegisters(const std::filesystem::path& file) {
  try {
    const ImportOrder order = readOrder(file);
    Console console;
    Progress progress;
    support::MemorySettings settings;
    support::SystemClock clock;
    Desk desk(ParishFiles(order.parish), accountName(), console, settings, clock);
    const ResultadoImportacion result = runImport(desk, order, progress);
    const std::string text = result.texto();
    std::cout << text << std::flush;
    const auto saved = reportFile(order, text::toStored(clock.today()), clock.now());
    files::replace(saved, text);
    std::cerr << "El informe se ha guardado en «" << saved.string() << "».\n";
    return result.completa() ? 0 : 1;
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
}

}  // namespace fidaleon::app
