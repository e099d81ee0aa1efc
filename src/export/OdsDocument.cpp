#include "export/OdsDocument.h"

#include <QXmlStreamWriter>

#include "export/ZipArchive.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

constexpr const char* TYPE = "application/vnd.oasis.opendocument.spreadsheet";
constexpr const char* NAMESPACE = "urn:oasis:names:tc:opendocument:xmlns:";
constexpr const char* MANIFEST = "urn:oasis:names:tc:opendocument:xmlns:manifest:1.0";
constexpr int LONGEST_SHEET_NAME = 31;

QString utf16(const std::string& s) {
  return QString::fromStdString(s);
}

/// The text without what no XML may hold.
QString fitForXml(const std::string& s) {
  QString text = utf16(text::sanitized(s));
  text.replace("\r\n", "\n").replace('\r', '\n');
  text.replace('\t', ' ');  // a cell cannot show it
  return text.remove(QChar(0xFFFE)).remove(QChar(0xFFFF));
}

QString sheetName(const std::string& name) {
  QString fit = fitForXml(name);
  for (const char c : {'[', ']', '*', '?', ':', '/', '\\', '\'', '\n'}) fit.replace(c, ' ');
  fit = fit.simplified().left(LONGEST_SHEET_NAME).trimmed();
  return fit.isEmpty() ? "Lista" : fit;
}

/// Writes the elements of the sheet.
class Sheet {
 public:
  explicit Sheet(QByteArray& out) : xml_(&out) {}

  void write(const ListTable& table) {
    xml_.writeStartDocument("1.0");
    xml_.writeStartElement("office:document-content");
    for (const char* const prefix : {"office", "table", "text", "style"})
      xml_.writeAttribute(QString("xmlns:") + prefix, QString(NAMESPACE) + prefix + ":1.0");
    xml_.writeAttribute("xmlns:number", QString(NAMESPACE) + "datastyle:1.0");
    xml_.writeAttribute("xmlns:fo", QString(NAMESPACE) + "xsl-fo-compatible:1.0");
    xml_.writeAttribute("office:version", "1.2");
    writeStyles(table);
    xml_.writeStartElement("office:body");
    xml_.writeStartElement("office:spreadsheet");
    writeTable(table);
    xml_.writeEndDocument();
  }

 private:
  void writeStyles(const ListTable& table) {
    xml_.writeStartElement("office:automatic-styles");
    writeDateStyle();
    writeTimeStyle();
    writeCellStyle("titulo", {}, true);
    writeCellStyle("fecha", "N-fecha", false);
    writeCellStyle("hora", "N-hora", false);
    for (std::size_t c = 0; c < table.columns.size(); ++c)
      writeColumnStyle(columnStyle(c), table.columns[c].centimetres);
    xml_.writeEndElement();
  }

  void writeDateStyle() {
    xml_.writeStartElement("number:date-style");
    xml_.writeAttribute("style:name", "N-fecha");
    writePart("number:day", "long");
    xml_.writeTextElement("number:text", "/");
    writePart("number:month", "long");
    xml_.writeTextElement("number:text", "/");
    writePart("number:year", "long");
    xml_.writeEndElement();
  }

  void writeTimeStyle() {
    xml_.writeStartElement("number:time-style");
    xml_.writeAttribute("style:name", "N-hora");
    writePart("number:hours", "long");
    xml_.writeTextElement("number:text", ":");
    writePart("number:minutes", "long");
    xml_.writeEndElement();
  }

  void writePart(const char* name, const char* style) {
    xml_.writeEmptyElement(name);
    xml_.writeAttribute("number:style", style);
  }

  void writeCellStyle(const char* name, const char* data, bool bold) {
    xml_.writeStartElement("style:style");
    xml_.writeAttribute("style:name", name);
    xml_.writeAttribute("style:family", "table-cell");
    if (data) xml_.writeAttribute("style:data-style-name", data);
    if (bold) {
      xml_.writeEmptyElement("style:text-properties");
      xml_.writeAttribute("fo:font-weight", "bold");
    }
    xml_.writeEndElement();
  }

  void writeColumnStyle(const QString& name, double centimetres) {
    xml_.writeStartElement("style:style");
    xml_.writeAttribute("style:name", name);
    xml_.writeAttribute("style:family", "table-column");
    xml_.writeEmptyElement("style:table-column-properties");
    xml_.writeAttribute("style:column-width", QString::number(centimetres, 'f', 2) + "cm");
    xml_.writeEndElement();
  }

  static QString columnStyle(std::size_t column) { return "columna" + QString::number(column + 1); }

  void writeTable(const ListTable& table) {
    xml_.writeStartElement("table:table");
    xml_.writeAttribute("table:name", sheetName(table.name));
    for (std::size_t c = 0; c < table.columns.size(); ++c) {
      xml_.writeEmptyElement("table:table-column");
      xml_.writeAttribute("table:style-name", columnStyle(c));
    }
    xml_.writeStartElement("table:table-header-rows");
    xml_.writeStartElement("table:table-row");
    for (const ListColumn& column : table.columns) {
      xml_.writeStartElement("table:table-cell");
      xml_.writeAttribute("table:style-name", "titulo");
      writeString(column.title);
      xml_.writeEndElement();
    }
    xml_.writeEndElement();
    xml_.writeEndElement();
    for (const auto& row : table.rows) writeRow(row);
    xml_.writeEndElement();
  }

  void writeRow(const std::vector<ListCell>& row) {
    xml_.writeStartElement("table:table-row");
    for (const ListCell& cell : row) {
      xml_.writeStartElement("table:table-cell");
      if (!cell.value.empty()) writeValue(cell);
      xml_.writeEndElement();
    }
    xml_.writeEndElement();
  }

  void writeValue(const ListCell& cell) {
    const QString value = utf16(cell.value);
    switch (cell.kind) {
      case ListCell::Kind::Text:
        return writeString(cell.value);
      case ListCell::Kind::Number:
        return writeTyped("float", "office:value", value, nullptr, value);
      case ListCell::Kind::Date:
        return writeTyped("date", "office:date-value", value, "fecha",
                          value.mid(8, 2) + "/" + value.mid(5, 2) + "/" + value.left(4));
      case ListCell::Kind::Time:
        return writeTyped("time", "office:time-value",
                          "PT" + value.left(2) + "H" + value.mid(3, 2) + "M00S", "hora", value);
    }
  }

  void writeTyped(const char* type, const char* attribute, const QString& value, const char* style,
                  const QString& shown) {
    if (style) xml_.writeAttribute("table:style-name", style);
    xml_.writeAttribute("office:value-type", type);
    xml_.writeAttribute(attribute, value);
    xml_.writeTextElement("text:p", shown);
  }

  void writeString(const std::string& text) {
    xml_.writeAttribute("office:value-type", "string");
    for (const QString& line : fitForXml(text).split('\n')) writeParagraph(line);
  }

  // Blanks at an end or in a row would otherwise be taken for one blank or none.
  void writeParagraph(const QString& line) {
    xml_.writeStartElement("text:p");
    QString plain;
    for (qsizetype i = 0; i < line.size(); ++i) {
      const bool blank = line[i] == ' ';
      const bool kept = blank && i > 0 && i + 1 < line.size() && line[i - 1] != ' ';
      if (!blank || kept) {
        plain += line[i];
        continue;
      }
      xml_.writeCharacters(plain);
      plain.clear();
      xml_.writeEmptyElement("text:s");
    }
    xml_.writeCharacters(plain);
    xml_.writeEndElement();
  }

  QXmlStreamWriter xml_;
};

std::string manifest() {
  QByteArray out;
  QXmlStreamWriter xml(&out);
  xml.writeStartDocument("1.0");
  xml.writeStartElement("manifest:manifest");
  xml.writeAttribute("xmlns:manifest", MANIFEST);
  xml.writeAttribute("manifest:version", "1.2");
  for (const auto& [path, type] : {std::pair{"/", TYPE}, std::pair{"content.xml", "text/xml"}}) {
    xml.writeEmptyElement("manifest:file-entry");
    xml.writeAttribute("manifest:full-path", path);
    xml.writeAttribute("manifest:media-type", type);
  }
  xml.writeEndDocument();
  return out.toStdString();
}

}  // namespace

std::string odsContent(const ListTable& table) {
  QByteArray out;
  Sheet(out).write(table);
  return out.toStdString();
}

std::string odsDocument(const ListTable& table) {
  // Readers know the kind of document by its first member, which they look at as it stands.
  return zipArchive({{"mimetype", TYPE, ZipEntry::Stored},
                     {"content.xml", odsContent(table), ZipEntry::Packed},
                     {"META-INF/manifest.xml", manifest(), ZipEntry::Packed}});
}

}  // namespace fidaleon::app
