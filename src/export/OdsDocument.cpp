#include "export/OdsDocument.h"

#include <QXmlStreamWriter>
#include <algorithm>
#include <utility>

#include "export/ZipArchive.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

constexpr const char* TYPE = "application/vnd.oasis.opendocument.spreadsheet";
constexpr const char* NAMESPACE = "urn:oasis:names:tc:opendocument:xmlns:";
constexpr const char* MANIFEST = "urn:oasis:names:tc:opendocument:xmlns:manifest:1.0";
constexpr int LONGEST_SHEET_NAME = 31;
constexpr std::uint64_t LONGEST_CELL = 400;  // bytes, on the average of a whole list

bool isPlain(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c < 0x7F; });
}

/// The text without what no XML may hold, its lines ended in one way.
std::string fitForXml(const std::string& s) {
  if (isPlain(s)) return s;
  std::string fit = text::replaceAll(text::sanitized(s), "\r\n", "\n");
  std::replace(fit.begin(), fit.end(), '\r', '\n');
  std::replace(fit.begin(), fit.end(), '\t', ' ');  // a cell cannot show it
  for (const char* const none : {"\xEF\xBF\xBE", "\xEF\xBF\xBF"})
    fit = text::replaceAll(fit, none, "");
  return fit;
}

QString sheetName(const std::string& name) {
  QString fit = QString::fromStdString(fitForXml(name));
  for (const char c : {'[', ']', '*', '?', ':', '/', '\\', '\'', '\n'}) fit.replace(c, ' ');
  fit = fit.simplified().left(LONGEST_SHEET_NAME).trimmed();
  return fit.isEmpty() ? "Lista" : fit;
}

/// Writes the sheet as far as its rows.
class Head {
 public:
  explicit Head(QByteArray& out) : xml_(&out) {}

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
    writeColumns(table);
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

  void writeColumns(const ListTable& table) {
    xml_.writeStartElement("table:table");
    xml_.writeAttribute("table:name", sheetName(table.name));
    for (std::size_t c = 0; c < table.columns.size(); ++c) {
      xml_.writeEmptyElement("table:table-column");
      xml_.writeAttribute("table:style-name", columnStyle(c));
    }
    xml_.writeCharacters({});  // ends the tag
  }

  QXmlStreamWriter xml_;
};

/// The letters of a text as XML has them.
void addEscaped(std::string& out, std::string_view text) {
  for (const char c : text) {
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      default:
        out += c;
    }
  }
}

// Blanks at an end or in a row would otherwise be taken for one blank or none.
void addParagraph(std::string& out, std::string_view line) {
  out += "<text:p>";
  std::size_t from = 0;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const bool kept = i > 0 && i + 1 < line.size() && line[i - 1] != ' ';
    if (line[i] != ' ' || kept) continue;
    addEscaped(out, line.substr(from, i - from));
    out += "<text:s/>";
    from = i + 1;
  }
  addEscaped(out, line.substr(from));
  out += "</text:p>";
}

void addString(std::string& out, const std::string& text) {
  out += "office:value-type=\"string\">";
  const std::string fit = fitForXml(text);
  std::size_t from = 0;
  for (std::size_t end; (end = fit.find('\n', from)) != std::string::npos; from = end + 1)
    addParagraph(out, std::string_view(fit).substr(from, end - from));
  addParagraph(out, std::string_view(fit).substr(from));
}

void addTyped(std::string& out, std::string_view type, const std::string& value,
              const std::string& shown) {
  out.append("office:value-type=\"").append(type).append("\" office:");
  out.append(type == "float" ? "value" : std::string(type) + "-value").append("=\"");
  addEscaped(out, value);
  out += "\">";
  addParagraph(out, shown);
}

void addValue(std::string& out, const ListCell& cell) {
  const std::string& value = cell.value;
  switch (cell.kind) {
    case ListCell::Kind::Text:
      return addString(out, value);
    case ListCell::Kind::Number:
      return addTyped(out, "float", value, value);
    case ListCell::Kind::Date:
      out += "table:style-name=\"fecha\" ";
      return addTyped(out, "date", value,
                      value.substr(8, 2) + "/" + value.substr(5, 2) + "/" + value.substr(0, 4));
    case ListCell::Kind::Time:
      out += "table:style-name=\"hora\" ";
      return addTyped(out, "time", "PT" + value.substr(0, 2) + "H" + value.substr(3, 2) + "M00S",
                      value);
  }
}

void addRow(std::string& out, const ListLine& row) {
  out += "<table:table-row>";
  for (const ListCell& cell : row) {
    if (cell.value.empty()) {
      out += "<table:table-cell/>";
      continue;
    }
    out += "<table:table-cell ";
    addValue(out, cell);
    out += "</table:table-cell>";
  }
  out += "</table:table-row>";
}

void addTitles(std::string& out, const ListTable& table) {
  out += "<table:table-header-rows><table:table-row>";
  for (const ListColumn& column : table.columns) {
    out += "<table:table-cell table:style-name=\"titulo\" ";
    addString(out, column.title);
    out += "</table:table-cell>";
  }
  out += "</table:table-row></table:table-header-rows>";
}

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

std::function<void(std::string& part)> odsContent(const ListTable& table) {
  return [&table, next = std::size_t{0}, begun = false](std::string& part) mutable {
    if (!std::exchange(begun, true)) {
      QByteArray head;
      Head(head).write(table);
      part += head.toStdString();
      addTitles(part, table);
    } else if (next < table.count) {
      addRow(part, table.row(next++));
    } else if (next++ == table.count) {
      part += "</table:table></office:spreadsheet></office:body></office:document-content>\n";
    }
  };
}

void writeOds(const ListTable& table, const std::filesystem::path& file) {
  // Readers know the kind of document by its first member, which they look at as it stands.
  std::vector<ZipEntry> entries;
  entries.push_back(entryOf("mimetype", TYPE, ZipEntry::Stored));
  const std::uint64_t cells = (table.count + 1) * (table.columns.size() + 1);
  entries.push_back({"content.xml", odsContent(table), cells * LONGEST_CELL, ZipEntry::Packed});
  entries.push_back(entryOf("META-INF/manifest.xml", manifest(), ZipEntry::Packed));
  writeZip(file, std::move(entries));
}

}  // namespace fidaleon::app
