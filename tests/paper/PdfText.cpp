#include "paper/PdfText.h"

#include <QRegularExpression>
#include <QString>
#include <cstdio>
#include <fstream>
#include <memory>
#include <stdexcept>

namespace fidaleon::paper::test {

void TemporaryFolder::write(const std::string& name, const std::string& content) const {
  std::ofstream(path() / name, std::ios::binary) << content;
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

std::string pageText(const Report& report, int page) {
  const TemporaryFolder folder;
  const auto file = folder.path() / "a.pdf";
  report.savePdf(file);
  const std::string number = std::to_string(page + 1);
  return outputOf("pdftotext -layout -f " + number + " -l " + number + " '" + file.string() +
                  "' -");
}

std::vector<std::string> found(const std::string& text, const char* pattern) {
  std::vector<std::string> out;
  const QRegularExpression expression(QString::fromUtf8(pattern));
  for (auto it = expression.globalMatch(QString::fromStdString(text)); it.hasNext();)
    out.push_back(it.next().captured(1).toStdString());
  return out;
}

}  // namespace fidaleon::paper::test
