#include "paper/TemplateReader.h"

#include <QHash>
#include <QSet>
#include <algorithm>
#include <functional>

#include "paper/Error.h"
#include "paper/InlineReader.h"
#include "paper/XmlTree.h"

namespace fidaleon::paper {
namespace {

const QStringList kDefaultFonts{QStringLiteral("Linux Libertine O"),
                                QStringLiteral("Linux Libertine"),
                                QStringLiteral("Libertinus Serif"),
                                QStringLiteral("TeX Gyre Termes"),
                                QStringLiteral("Liberation Serif"),
                                QStringLiteral("DejaVu Serif"),
                                QStringLiteral("serif")};

/// Reads the attributes of one element; what is left unread at the end is an error.
class Attributes {
 public:
  explicit Attributes(const XmlNode& node) : node_(node), left_(node.attributes) {}

  QString text(const char* name, const QString& otherwise = {}) {
    const QString key = QString::fromLatin1(name);
    return left_.contains(key) ? left_.take(key) : otherwise;
  }

  qreal number(const char* name, qreal otherwise) {
    const QString value = text(name);
    if (value.isNull()) return otherwise;
    bool ok = false;
    const qreal n = value.toDouble(&ok);
    if (!ok || n < 0 || n > 2000)
      failAt(node_, QStringLiteral("«%1» no es una medida: «%2»").arg(QLatin1String(name), value));
    return n;
  }

  bool flag(const char* name, bool otherwise) {
    return choice<bool>(name, otherwise, {{"yes", true}, {"no", false}});
  }

  template <class T>
  T choice(const char* name, T otherwise, std::initializer_list<std::pair<const char*, T>> known) {
    const QString value = text(name);
    if (value.isNull()) return otherwise;
    for (const auto& [word, meaning] : known)
      if (value == QLatin1String(word)) return meaning;
    failAt(node_, QStringLiteral("«%1» no admite «%2»").arg(QLatin1String(name), value));
  }

  void done() {
    if (!left_.isEmpty())
      failAt(node_,
             QStringLiteral("«%1» no tiene el atributo «%2»").arg(node_.name, left_.firstKey()));
  }

  const XmlNode& node() const { return node_; }
  /// The named style, left to be read.
  QString style() const { return left_.value(QStringLiteral("style")); }

 private:
  const XmlNode& node_;
  QMap<QString, QString> left_;
};

class Reader {
 public:
  ReportTemplate read(const XmlNode& root, const std::string& name) {
    if (root.name != QLatin1String("template"))
      failAt(root, QStringLiteral("el primer elemento debe ser «template»"));
    t_.name = QString::fromStdString(name);
    t_.fonts = kDefaultFonts;
    Attributes a(root);
    t_.table = a.text("table");
    t_.language = a.text("language", t_.language);
    t_.flow = a.choice<Flow>("flow", Flow::Page,
                             {{"page", Flow::Page}, {"continuous", Flow::Continuous}});
    t_.smallestScale = a.number("smallest-scale", 1);
    t_.order = a.text("order");
    a.done();
    if (t_.table.isEmpty()) failAt(root, QStringLiteral("falta el atributo «table»"));
    for (const XmlNode& child : root.children) readTop(child);
    if (t_.bodies.empty()) failAt(root, QStringLiteral("falta el elemento «body»"));
    if (t_.bodies.size() > 1 && t_.flow != Flow::Page)
      failAt(root, QStringLiteral("varios «body» necesitan flow=\"page\""));
    const bool flowing = !t_.opening.empty() || !t_.closing.empty() || !t_.between.empty() ||
                         !t_.groupHeads.empty() || t_.pageColumns > 1;
    if (flowing && t_.flow != Flow::Continuous)
      failAt(root, QStringLiteral("«opening», «closing», «between», «group-head» y las columnas de "
                                  "página necesitan flow=\"continuous\""));
    if (!joinValues_.isEmpty())
      t_.anyJoin = readPattern(root, "value",
                               QStringLiteral("^(?:%1)").arg(joinValues_.join(QLatin1Char('|'))));
    t_.readsTotal = t_.header.onlyWhenSeveral || t_.footer.onlyWhenSeveral ||
                    readsTotal(t_.header.blocks) || readsTotal(t_.footer.blocks);
    return std::move(t_);
  }

 private:
  void readTop(const XmlNode& node) {
    static const QHash<QString, void (Reader::*)(const XmlNode&)> known{
        {QStringLiteral("side"), &Reader::readSide},
        {QStringLiteral("page"), &Reader::readPage},
        {QStringLiteral("font"), &Reader::readFont},
        {QStringLiteral("style"), &Reader::readStyle},
        {QStringLiteral("formula"), &Reader::readFormula},
        {QStringLiteral("gender"), &Reader::readGender},
        {QStringLiteral("join"), &Reader::readJoin},
        {QStringLiteral("header"), &Reader::readHeader},
        {QStringLiteral("footer"), &Reader::readFooter},
        {QStringLiteral("body"), &Reader::readBody},
        {QStringLiteral("opening"), &Reader::readOpening},
        {QStringLiteral("closing"), &Reader::readClosing},
        {QStringLiteral("between"), &Reader::readBetween},
        {QStringLiteral("group-head"), &Reader::readGroupHead},
    };
    if (isBlankText(node)) return;
    const auto found = known.find(node.name);
    if (found == known.end()) failUnknown(node);
    (this->*found.value())(node);
  }

  void readSide(const XmlNode& node) {
    Attributes a(node);
    SideTable side{a.text("name"), a.text("table"), a.text("key"),
                   a.text("of"),   a.text("where"), a.text("is")};
    a.done();
    if (side.name.isEmpty() || side.table.isEmpty() || side.key.isEmpty() || side.of.isEmpty())
      failAt(node, QStringLiteral("«side» necesita «name», «table», «key» y «of»"));
    if (side.where.isEmpty() != side.is.isEmpty())
      failAt(node, QStringLiteral("«where» e «is» van juntos"));
    t_.sides.push_back(std::move(side));
  }

  void readPage(const XmlNode& node) {
    Attributes a(node);
    t_.page = {a.number("width", 210), a.number("height", 297)};
    t_.marginTop = a.number("top", t_.marginTop);
    t_.marginRight = a.number("right", t_.marginRight);
    t_.marginBottom = a.number("bottom", t_.marginBottom);
    t_.marginLeft = a.number("left", t_.marginLeft);
    t_.pageColumns = static_cast<int>(a.number("columns", t_.pageColumns));
    t_.pageColumnGap = a.number("column-gap", t_.pageColumnGap);
    t_.mirrored = a.flag("mirrored", t_.mirrored);
    a.done();
    if (t_.pageColumns < 1 ||
        t_.page.width() - t_.marginLeft - t_.marginRight <
            30 * t_.pageColumns + t_.pageColumnGap * (t_.pageColumns - 1) ||
        t_.page.height() - t_.marginTop - t_.marginBottom < 30)
      failAt(node, QStringLiteral("los márgenes no dejan sitio al texto"));
  }

  void readFont(const XmlNode& node) {
    Attributes a(node);
    const QString family = a.text("family");
    if (!family.isEmpty()) t_.fonts.prepend(family);
    base_ = styleOf(a, base_);
    a.done();
  }

  void readStyle(const XmlNode& node) {
    Attributes a(node);
    const QString name = a.text("name");
    if (name.isEmpty()) failAt(node, QStringLiteral("falta el atributo «name»"));
    styles_[name] = styleOf(a, base_);
    if (a.flag("with-next", false)) headings_.insert(name);
    a.done();
  }

  void readFormula(const XmlNode& node) {
    Attributes a(node);
    Formula f;
    f.name = a.text("name");
    f.as = a.choice<Formula::As>("as", Formula::As::Text,
                                 {{"text", Formula::As::Text},
                                  {"number", Formula::As::Number},
                                  {"date", Formula::As::Date}});
    a.done();
    if (f.name.isEmpty()) failAt(node, QStringLiteral("falta el atributo «name»"));
    f.text = readInlines(node, t_);
    t_.formulas.push_back(std::move(f));
  }

  void readGender(const XmlNode& node) {
    Attributes a(node);
    t_.feminine = readCondition(node, {a.text("column"), {}, a.text("feminine")}, t_.columns);
    a.done();
    if (!t_.feminine || !t_.feminine->pattern)
      failAt(node, QStringLiteral("«gender» necesita «column» y «feminine»"));
  }

  void readJoin(const XmlNode& node) {
    Attributes a(node);
    Join join;
    const QString before = a.text("before");
    const QString value = a.text("value");
    if (before.isEmpty() || value.isEmpty())
      failAt(node, QStringLiteral("«join» necesita «before» y «value»"));
    join.before = readPattern(node, "before", QStringLiteral("(?:%1)$").arg(before));
    join.value = readPattern(node, "value", QStringLiteral("^(?:%1)").arg(value));
    if (node.attributes.contains(QStringLiteral("put"))) join.put = a.text("put");
    join.cut = a.flag("cut", false);
    joinValues_ << value;
    a.done();
    t_.joins.push_back(std::move(join));
  }

  void readHeader(const XmlNode& node) { readFurniture(node, t_.header); }
  void readFooter(const XmlNode& node) { readFurniture(node, t_.footer); }

  void readFurniture(const XmlNode& node, Furniture& f) {
    Attributes a(node);
    f.fromPage = static_cast<int>(a.number("from", 1));
    f.onlyWhenSeveral = a.flag("only-when-several", false);
    a.done();
    f.blocks = readBlocks(node);
  }

  void readBody(const XmlNode& node) {
    Attributes a(node);
    t_.marksAcross = a.flag("marks-across", t_.marksAcross);
    Body body;
    body.condition =
        readCondition(node, {a.text("if"), a.text("unless"), a.text("matches")}, t_.columns);
    body.ownPages = a.flag("own-pages", false);
    a.done();
    body.blocks = readBlocks(node);
    if (!body.blocks.empty()) t_.bodies.push_back(std::move(body));
  }

  void readOpening(const XmlNode& node) {
    Attributes a(node);
    t_.openingHasItsPage = a.flag("own-page", false);
    a.done();
    t_.opening = readBlocks(node);
  }

  void readClosing(const XmlNode& node) {
    Attributes(node).done();
    t_.closing = readBlocks(node);
  }

  void readBetween(const XmlNode& node) {
    Attributes(node).done();
    t_.between = readBlocks(node);
  }

  void readGroupHead(const XmlNode& node) {
    Attributes a(node);
    const QStringList names = a.text("column").split(QLatin1Char(','), Qt::SkipEmptyParts);
    a.done();
    if (names.isEmpty()) failAt(node, QStringLiteral("falta el atributo «column»"));
    GroupHead head;
    for (const QString& name : names) head.columns.push_back(columnIndex(name, t_.columns));
    head.blocks = readBlocks(node);
    t_.groupHeads.push_back(std::move(head));
  }

  std::vector<Block> readBlocks(const XmlNode& node) {
    std::vector<Block> blocks;
    for (const XmlNode& child : node.children)
      if (!isBlankText(child)) blocks.push_back(readBlock(child));
    return blocks;
  }

  Block readBlock(const XmlNode& node) {
    using Read = void (Reader::*)(Attributes&, Block&);
    static const QHash<QString, std::pair<Block::Kind, Read>> known{
        {QStringLiteral("p"), {Block::Kind::Paragraph, &Reader::readParagraph}},
        {QStringLiteral("group"), {Block::Kind::Group, &Reader::readGroup}},
        {QStringLiteral("column"), {Block::Kind::Group, &Reader::readGroup}},
        {QStringLiteral("columns"), {Block::Kind::Columns, &Reader::readColumns}},
        {QStringLiteral("box"), {Block::Kind::Box, &Reader::readBox}},
        {QStringLiteral("field"), {Block::Kind::Field, &Reader::readField}},
        {QStringLiteral("rule"), {Block::Kind::Rule, &Reader::readRule}},
        {QStringLiteral("cross"), {Block::Kind::Cross, &Reader::readCross}},
        {QStringLiteral("space"), {Block::Kind::Space, &Reader::readSpace}},
        {QStringLiteral("write-lines"), {Block::Kind::WriteLines, &Reader::readWriteLines}},
    };
    const auto found = known.find(node.name);
    if (found == known.end()) failUnknown(node);
    Block block;
    block.kind = found->first;
    Attributes a(node);
    block.condition =
        readCondition(node, {a.text("if"), a.text("unless"), a.text("matches")}, t_.columns);
    (this->*found->second)(a, block);
    a.done();
    return block;
  }

  void readParagraph(Attributes& a, Block& block) {
    const QString named = a.style();
    block.style = namedStyle(a);
    block.withNext = a.flag("with-next", headings_.contains(named));
    block.clause = a.flag("clause", false);
    block.text = readInlines(a.node(), t_);
  }

  void readGroup(Attributes& a, Block& block) {
    block.keep = a.flag("keep", false);
    block.clear = a.flag("clear", false);
    block.width = a.number("width", 0);
    block.children = readBlocks(a.node());
  }

  void readColumns(Attributes& a, Block& block) {
    block.gap = a.number("gap", 5);
    block.divider = a.flag("divider", false);
    block.keep = a.flag("keep", false);
    block.atFoot = a.choice<bool>("align", false, {{"top", false}, {"bottom", true}});
    block.children = readBlocks(a.node());
    for (const XmlNode& child : a.node().children)
      if (!isBlankText(child) && child.name != QLatin1String("column"))
        failAt(child, QStringLiteral("«columns» solo contiene «column»"));
  }

  void readBox(Attributes& a, Block& block) {
    block.padding = a.number("padding", 2);
    block.thickness = a.number("thickness", block.thickness);
    block.height = a.number("height", 0);
    block.dashed = a.flag("dashed", false);
    block.keep = a.flag("keep", false);
    block.children = readBlocks(a.node());
  }

  void readField(Attributes& a, Block& block) {
    XmlNode label = a.node();
    label.children = {{{}, a.text("label"), {}, {}, label.file, label.line}};
    block.label = readInlines(label, t_);
    block.clause = a.flag("clause", false);
    block.width = a.number("label-width", 0);
    block.writeIn = a.flag("write-in", false);
    block.style = namedStyle(a);
    block.valueStyle = block.style;
    block.valueStyle.leading = 1;
    block.labelStyle = styles_.value(QStringLiteral("label"), base_);
    block.labelStyle.align = Qt::AlignLeft;
    block.text = readInlines(a.node(), t_);
  }

  void readRule(Attributes& a, Block& block) {
    block.thickness = a.number("thickness", block.thickness);
    block.style.before = a.number("before", 0);
    block.style.after = a.number("after", 0);
  }

  void readCross(Attributes& a, Block& block) { block.height = a.number("height", 8.2); }
  void readSpace(Attributes& a, Block& block) { block.height = a.number("height", 4); }

  void readWriteLines(Attributes& a, Block& block) {
    block.gap = a.number("spacing", 7);
    block.height = a.number("height", block.gap);
    if (block.gap < 1) failAt(a.node(), QStringLiteral("las rayas quedarían demasiado juntas"));
  }

  static bool readsTotal(const std::vector<Inline>& inlines) {
    return std::any_of(inlines.begin(), inlines.end(), [](const Inline& i) {
      return i.kind == Inline::Kind::PageTotal || readsTotal(i.children);
    });
  }
  static bool readsTotal(const std::vector<Block>& blocks) {
    return std::any_of(blocks.begin(), blocks.end(), [](const Block& b) {
      return readsTotal(b.text) || readsTotal(b.label) || readsTotal(b.children);
    });
  }

  TextStyle namedStyle(Attributes& a) {
    const QString name = a.text("style");
    if (!name.isEmpty() && !styles_.contains(name))
      failAt(a.node(), QStringLiteral("no hay ningún estilo «%1»").arg(name));
    return styleOf(a, name.isEmpty() ? base_ : styles_[name]);
  }

  static TextStyle styleOf(Attributes& a, TextStyle s) {
    s.size = a.number("size", s.size);
    s.bold = a.flag("bold", s.bold);
    s.italic = a.flag("italic", s.italic);
    s.smallCaps = a.flag("small-caps", s.smallCaps);
    s.tracking = a.number("tracking", s.tracking);
    s.leading = a.number("leading", s.leading);
    s.before = a.number("before", s.before);
    s.after = a.number("after", s.after);
    s.indent = a.number("indent", s.indent);
    s.hang = a.number("hang", s.hang);
    s.leader = a.flag("leader", s.leader);
    s.oneLine = a.flag("one-line", s.oneLine);
    s.align = a.choice<Qt::Alignment>("align", s.align,
                                      {{"left", Qt::AlignLeft},
                                       {"right", Qt::AlignRight},
                                       {"center", Qt::AlignHCenter},
                                       {"justify", Qt::AlignJustify}});
    return s;
  }

  ReportTemplate t_;
  QStringList joinValues_;
  TextStyle base_;
  QHash<QString, TextStyle> styles_;
  QSet<QString> headings_;  // styles of paragraphs that stay with what follows
};

}  // namespace

ReportTemplate readTemplate(const std::filesystem::path& directory, const std::string& name) {
  return Reader().read(readXml(directory / (name + ".xml")), name);
}

}  // namespace fidaleon::paper
