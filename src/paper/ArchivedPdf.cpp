#include "paper/ArchivedPdf.h"

#include <qpdf/Buffer.hh>
#include <qpdf/Pl_Function.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>
#include <stdexcept>
#include <string>

namespace fidaleon::paper {
namespace {

using Object = QPDFObjectHandle;

std::string listed(const char* property, const char* kind, const QString& value) {
  if (value.isEmpty()) return {};
  return QStringLiteral("<dc:%1><rdf:%2><rdf:li>%3</rdf:li></rdf:%2></dc:%1>")
      .arg(QLatin1String(property), QLatin1String(kind), value.toHtmlEscaped())
      .toStdString();
}

// An archive reads the metadata beside the document's properties, and refuses one where they
// differ.
void completeMetadata(Object metadata, const PdfFacts& facts) {
  const auto content = metadata.getStreamData();
  std::string text(reinterpret_cast<const char*>(content->getBuffer()), content->getSize());
  const std::size_t end = text.find("</rdf:RDF>");
  if (end == std::string::npos) throw std::runtime_error("metadata without an end");
  text.insert(
      end, "<rdf:Description xmlns:dc=\"http://purl.org/dc/elements/1.1/\" rdf:about=\"\">" +
               listed("creator", "Seq", facts.author) + listed("language", "Bag", facts.language) +
               "</rdf:Description>");
  metadata.replaceStreamData(text, Object::newNull(), Object::newNull());
}

}  // namespace

void writeArchived(const QByteArray& pdf, const PdfFacts& facts, QIODevice& to) {
  QPDF document;
  document.processMemoryFile("", pdf.constData(), static_cast<std::size_t>(pdf.size()));
  Object root = document.getRoot();
  root.replaceKey("/Lang", Object::newString(facts.language.toStdString()));
  if (!facts.author.isEmpty())
    document.getTrailer().getKey("/Info").replaceKey(
        "/Author", Object::newUnicodeString(facts.author.toStdString()));
  completeMetadata(root.getKey("/Metadata"), facts);

  Pl_Function sink("", nullptr, [&to](const unsigned char* data, std::size_t size) {
    to.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
  });
  QPDFWriter writer(document);
  writer.setOutputPipeline(&sink);
  writer.setStreamDataMode(qpdf_s_preserve);
  writer.setObjectStreamMode(qpdf_o_disable);
  writer.setNewlineBeforeEndstream(true);  // the archives' form wants it
  writer.write();
}

}  // namespace fidaleon::paper
