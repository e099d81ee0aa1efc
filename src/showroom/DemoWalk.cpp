#include "showroom/DemoWalk.h"

#include <ostream>

namespace fidaleon::app {

DemoWalk::DemoWalk(std::filesystem::path directory, std::ostream& out)
    : directory_(std::move(directory)), out_(out) {}

void DemoWalk::prepareDirectory() {
  std::filesystem::create_directories(directory_);
  const ParishFiles files(directory_);
  if (files.exists() && !std::filesystem::exists(directory_ / LOG))
    throw Failed("En «" + directory_.string() + "» ya hay una parroquia; elija otra carpeta.");
  for (const auto& entry : std::filesystem::directory_iterator(directory_)) {
    const std::string ending = entry.path().extension().string();
    if (ending == ".fidaleon" || ending == ".pdf" || ending == ".log")
      std::filesystem::remove(entry.path());
  }
  log_.open(directory_ / LOG);
  if (!log_) throw Failed("No se puede escribir en «" + directory_.string() + "».");
}

void DemoWalk::openDesk() {
  desk_ = std::make_unique<Desk>(ParishFiles(directory_), USER, user_, settings_, clock_);
  user_.onForm = [this](forms::Form& form) {
    say("   diálogo: " + (form.caption().empty() ? form.name() : form.caption()));
  };
}

void DemoWalk::say(const std::string& line) {
  out_ << line << std::endl;
  if (log_.is_open()) log_ << line << std::endl;
}

void DemoWalk::step(const std::string& title, const std::function<void()>& body) {
  say(std::to_string(++steps_) + ". " + title);
  body();
  const std::vector<std::string> problems = user_.problems();
  if (!problems.empty()) throw Failed(problems.front());
}

void DemoWalk::check(bool condition, const std::string& what) {
  if (!condition) throw Failed(what);
  say("   comprobado: " + what);
}

std::string DemoWalk::single(const std::string& sql) {
  const auto rows = desk_->parish().Execute(sql);
  return rows.EOF_() || rows.FieldCount() == 0 ? std::string() : rows.Fields(0).Value().text();
}

void DemoWalk::save(const std::optional<paper::Report>& report, std::size_t rows,
                    const std::string& name, const std::string& things) {
  check(report && report->rowCount() == rows, things + " en el documento: " + std::to_string(rows));
  const int pages = report->pageCount();
  check(pages > 0, "ocupa páginas: " + std::to_string(pages));
  const std::filesystem::path pdf = directory_ / (name + ".pdf");
  report->savePdf(pdf);
  check(std::filesystem::file_size(pdf) > 1000, "guardado como " + pdf.filename().string());
}

}  // namespace fidaleon::app
