#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

namespace fidaleon::paper {

/// What a document says of itself beside its title.
struct PdfFacts {
  QString author;    // who issues it; empty when nobody does
  QString language;  // "es", "ca"
};

/// Writes a PDF/A-1b that the toolkit has made, with author and language, which the toolkit leaves
/// out, where readers and archives look for them. Nothing of its pages changes. Throws
/// std::exception when it is no such PDF; what the device refuses is the device's to know.
void writeArchived(const QByteArray& pdf, const PdfFacts& facts, QIODevice& to);

}  // namespace fidaleon::paper
