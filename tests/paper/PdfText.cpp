#include "paper/PdfText.h"

#include <QString>
#include <QTemporaryDir>
#include <cstdio>
#include <fstream>
#include <memory>
#include <stdexcept>

namespace fidaleon::paper::test {

TemporaryFolder::TemporaryFolder() {
  QTemporaryDir dir;
  dir.setAutoRemove(false);
  path_ = dir.path().toStdString();
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

void TemporaryFolder::write(const std::string& name, const std::string& content) const {
  std::ofstream(path_ / name, std::ios::binary) << content;
}

std::string outputOf(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  if (!pipe) throw std::runtime_error("cannot run " + command);
  std::string out;
  char buffer[4096];
  for (std::size_t n; (n = fread(buffer, 1, sizeof buffer, pipe.get())) > 0;) out.append(buffer, n);
  return out;
}

std::string pdfText(const Report& report) {
  const TemporaryFolder folder;
  const auto file = folder.path() / "documento.pdf";
  report.savePdf(file);
  const QString text =
      QString::fromStdString(outputOf("pdftotext -raw -enc UTF-8 '" + file.string() + "' - 2>&1"));
  return text.simplified().replace(QChar(QChar::Nbsp), QLatin1Char(' ')).toStdString();
}

}  // namespace fidaleon::paper::test
