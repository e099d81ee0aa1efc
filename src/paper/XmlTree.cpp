#include "paper/XmlTree.h"

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include "paper/Error.h"

namespace fidaleon::paper {
namespace {

constexpr int kDeepestInclude = 4;
constexpr int kDeepestNesting = 60;

QString nameOf(const std::filesystem::path& file) {
  return QString::fromStdString(file.filename().string());
}

using Words = QMap<QString, QString>;

XmlNode readFile(const std::filesystem::path& file, const Words& words, int depth);

class TreeReader {
 public:
  TreeReader(QFile& device, const std::filesystem::path& file, const Words& words, int depth)
      : xml_(&device), file_(file), words_(words), depth_(depth) {}

  XmlNode readRoot() {
    if (xml_.readNextStartElement()) {
      XmlNode root = readElement(0);
      while (!xml_.atEnd()) xml_.readNext();
      if (!xml_.hasError()) return root;
    }
    failHere(notWellFormed());
  }

 private:
  XmlNode readElement(int nesting) {
    XmlNode node{xml_.name().toString(), {}, {}, {}, nameOf(file_), xml_.lineNumber()};
    if (nesting > kDeepestNesting) failAt(node, QStringLiteral("demasiados elementos anidados"));
    for (const QXmlStreamAttribute& a : xml_.attributes())
      node.attributes.insert(a.name().toString(), worded(a.value().toString()));
    while (!xml_.atEnd()) {
      const auto token = xml_.readNext();
      if (token == QXmlStreamReader::EndElement) return node;
      if (token == QXmlStreamReader::Characters)
        node.children.push_back(
            {{}, worded(xml_.text().toString()), {}, {}, nameOf(file_), xml_.lineNumber()});
      if (token == QXmlStreamReader::StartElement) addChild(node, readElement(nesting + 1));
    }
    failHere(notWellFormed());
  }

  void addChild(XmlNode& parent, XmlNode child) {
    if (child.name != QLatin1String("include")) {
      parent.children.push_back(std::move(child));
      return;
    }
    const QString name = child.attributes.value(QStringLiteral("file"));
    if (name.isEmpty() || name.contains(QLatin1Char('/')))
      failAt(child, QStringLiteral("«include» necesita «file», un archivo de la misma carpeta"));
    if (depth_ >= kDeepestInclude) failAt(child, QStringLiteral("demasiados «include» anidados"));
    Words words = words_;
    words.insert(child.attributes);
    XmlNode included = readFile(file_.parent_path() / name.toStdString(), words, depth_ + 1);
    for (XmlNode& c : included.children) parent.children.push_back(std::move(c));
  }

  QString worded(QString text) {
    if (!text.contains(QLatin1String("$("))) return text;
    static const QRegularExpression place(QStringLiteral("\\$\\((\\w+)\\)"));
    for (auto found = place.match(text); found.hasMatch(); found = place.match(text)) {
      const auto word = words_.constFind(found.captured(1));
      if (word == words_.constEnd())
        failHere(QStringLiteral("nadie dice qué es «%1»").arg(found.captured()));
      text.replace(found.capturedStart(), found.capturedLength(), *word);
    }
    return text;
  }

  QString notWellFormed() const {
    return QStringLiteral("no es XML bien formado (%1)").arg(xml_.errorString());
  }

  [[noreturn]] void failHere(const QString& message) {
    failAt({{}, {}, {}, {}, nameOf(file_), xml_.lineNumber()}, message);
  }

  QXmlStreamReader xml_;
  std::filesystem::path file_;
  Words words_;
  int depth_;
};

XmlNode readFile(const std::filesystem::path& file, const Words& words, int depth) {
  QFile device(QString::fromStdString(file.string()));
  if (!device.open(QIODevice::ReadOnly))
    throw Error(ErrorKind::MissingTemplate,
                QStringLiteral("No se encuentra la plantilla del documento o no se puede leer: %1.")
                    .arg(device.fileName())
                    .toStdString());
  return TreeReader(device, file, words, depth).readRoot();
}

}  // namespace

void failAt(const XmlNode& node, const QString& message) {
  throw Error(ErrorKind::BrokenTemplate,
              QStringLiteral("La plantilla «%1» está dañada (línea %2): %3.")
                  .arg(node.file)
                  .arg(node.line)
                  .arg(message)
                  .toStdString());
}

XmlNode readXml(const std::filesystem::path& file) {
  return readFile(file, {}, 0);
}

}  // namespace fidaleon::paper
