#pragma once

#include <QString>
#include <filesystem>
#include <memory>

#include "paper/ArchivedPdf.h"

class QPageLayout;
class QPainter;

namespace fidaleon::paper {

/// A PDF/A-1b in the making, sheet by sheet. The file appears with close(), or not at all; one that
/// stood there before is replaced.
class Volume {
 public:
  /// Throws Error(CannotWrite).
  Volume(const std::filesystem::path& file, const QString& title, PdfFacts facts,
         const QPageLayout& sheet);
  ~Volume();
  Volume(const Volume&) = delete;
  Volume& operator=(const Volume&) = delete;

  /// A sheet on which nothing stands yet, to be painted before the next is asked for.
  QPainter& sheet();
  /// There is another sheet to come: this one is ended while that one is laid out. Otherwise it is
  /// ended when the other one is asked for.
  void turn();
  /// All is painted. Throws Error(CannotWrite).
  void close();

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace fidaleon::paper
