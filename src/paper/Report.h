#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "paper/Error.h"
#include "paper/Row.h"
#include "store/Connection.h"

class QPainter;
class QPrinter;

namespace fidaleon::paper {

struct ReportOptions {
  /// "+{@Folio},+{@Numero}": formulas of the template. Empty: as the rows were written.
  std::string order;
  /// A word printed large across a row, such as "ANULADA"; empty for none. Asked once per row.
  std::function<QString(const Row&)> mark;
  /// Told after each row and, while writing or printing, after each page; false cancels.
  std::function<bool(std::size_t done, std::size_t total)> progress;
};

/// A template over the rows that its scratch table holds now, laid out on pages. Reads all it
/// needs when it is made: the table may be emptied afterwards. Needs a QGuiApplication.
class Report {
 public:
  /// `title` goes into the PDF and the print queue.
  /// Throws Error (see its kinds) and store::Error.
  Report(store::Connection& reports, const std::filesystem::path& templateDirectory,
         const std::string& templateName, QString title, ReportOptions options = {});
  ~Report();
  Report(Report&&) noexcept;
  Report& operator=(Report&&) noexcept;

  const QString& title() const;
  std::size_t rowCount() const;
  /// 0 when the table has no rows.
  int pageCount() const;
  QSizeF pageSizeMillimetres() const;

  /// Pages count from 0. The painter's origin is the corner of the sheet, whose size is that of
  /// the page at its device's resolution; scale the painter before to zoom.
  void paintPage(QPainter& painter, int page) const;
  QImage pageImage(int page, int dotsPerInch) const;

  /// The file appears complete or not at all; one that stood there before is replaced.
  /// Throws Error: CannotWrite, Cancelled.
  void savePdf(const std::filesystem::path& file) const;
  /// Prints the printer's page range and copies. Throws Error: NoPrinter, Cancelled.
  void print(QPrinter& printer) const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace fidaleon::paper
