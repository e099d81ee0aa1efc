#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "paper/Error.h"
#include "paper/Expansion.h"
#include "paper/Row.h"
#include "paper/Volume.h"
#include "store/Connection.h"

class QPainter;
class QPrinter;

namespace fidaleon::paper {

struct ReportOptions {
  /// "+{@Folio},+{@Numero}": formulas of the template. Empty: the template's own order, or as the
  /// rows were written.
  std::string order;
  /// A word printed large across a row, such as "ANULADA", and by the template as {{@Marca}};
  /// empty for none. Asked once per row, and once more where the template counts the marked
  /// ones. The row has the columns that the template reads, Libro,
  /// Folio and Numero, and those of `columns`.
  std::function<QString(const Row&)> mark;
  QStringList columns = {};
  /// A word printed large across every page and small above it, such as "MUESTRA"; empty for none.
  /// Where a page is one row with a mark of its own, both words stand in one.
  QString stamp;
  /// What the user is to know before the document is signed: see Report::notices.
  QStringList notices = {};
  /// Told after each page how many rows are laid out, or, once all are, how many pages are
  /// written or printed; false cancels.
  std::function<bool(std::size_t done, std::size_t total)> progress;
  /// What a template prints as {{@Name}}, by name without "@": the institution and the book of a
  /// printed book, whose rows do not hold them. "Fila", "Filas", "Marcadas" and "Marca" are
  /// taken. Absent is blank.
  GivenValues values;
  /// What was chosen for this document, such as "curia": a template asks <if option="curia">, and a
  /// block of it if="@curia".
  QStringList choices = {};
  /// Who issues the document, for the PDF.
  QString author = {};
  enum class Composition {
    Whole,     // the constructor lays out all pages
    AsNeeded,  // it lays out none: see composeMore
  };
  Composition composition = Composition::Whole;
};

/// A template over the rows that its scratch table holds now, laid out on pages. Reads all it
/// needs when it is made: the table may be emptied afterwards. Needs a QGuiApplication.
///
/// A document of any length takes little memory beside its rows: of a page only its beginning is
/// kept, and the page is laid out again when it is asked for. To be used from one thread, also
/// where const. Progress that cancels leaves a report that can go on where it stopped.
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
  /// Those of the options, and which fields hold signs that are printed as "?".
  const QStringList& notices() const;
  std::size_t rowCount() const;
  /// 0 when the table has no rows. Lays out what is left; may throw Error(Cancelled).
  int pageCount() const;
  /// Lays out pages until all are (true) or the time is over (false), at least one page. For a
  /// preview that shows its first page while the rest is counted; progress is not asked.
  bool composeMore(std::chrono::milliseconds time);
  bool isComplete() const;
  /// So far; pageCount() once complete.
  int composedPages() const;
  std::size_t composedRows() const;
  /// Pages whose layout is held now: a few, whatever the length of the document.
  int heldPages() const;
  QSizeF pageSizeMillimetres() const;

  /// Pages count from 0; one not yet laid out is, with all before it (and, where the template
  /// prints the count of pages, with all after it). The painter's origin is the corner of the
  /// sheet, whose size is that of the page at its device's resolution; scale the painter before to
  /// zoom.
  void paintPage(QPainter& painter, int page) const;
  QImage pageImage(int page, int dotsPerInch) const;

  /// A PDF/A-1b, as archives want it: with its fonts, title, author and language. The file appears
  /// complete or not at all; one that stood there before is replaced.
  /// Throws Error: CannotWrite, Cancelled.
  void savePdf(const std::filesystem::path& file) const;
  /// Several documents of one template are bound into one file like this: an empty volume of that
  /// title, and each of them into it. Throws Error as savePdf does.
  std::unique_ptr<Volume> volume(const std::filesystem::path& file, const QString& title) const;
  void bindInto(Volume& volume) const;
  /// Prints the printer's page range and copies. Throws Error: NoPrinter, Cancelled.
  void print(QPrinter& printer) const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace fidaleon::paper
