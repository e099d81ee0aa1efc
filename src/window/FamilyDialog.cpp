#include "window/FamilyDialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "window/FoundRow.h"

namespace fidaleon::app {
namespace {

constexpr int HIT = Qt::UserRole;  // which line, counted from 0

struct Button {
  SearchBox::Act act;
  const char* text;
};
const Button BUTTONS[] = {{SearchBox::Act::Open, "&Abrir"},
                          {SearchBox::Act::Print, "&Certificado"},
                          {SearchBox::Act::ShowInBook, "&Ver en su lista"}};

const char* titleOf(search::Kinship kinship) {
  switch (kinship) {
    case search::Kinship::Own:
      return "Sus registros";
    case search::Kinship::ParentsWedding:
      return "Matrimonio de los padres";
    case search::Kinship::Sibling:
      return "Hermanos";
    case search::Kinship::Child:
      return "Hijos";
  }
  return "";
}

}  // namespace

FamilyDialog::FamilyDialog(SearchBox& search, search::Register in, std::int32_t key,
                           QWidget* parent)
    : QDialog(parent), search_(search), in_(in), key_(key) {
  setWindowTitle(tr("La persona y su familia"));
  build();
  const QSize room = parent->size();
  resize(std::min(1000, room.width() - 20), std::min(620, room.height() - 20));
  ask();
}

FamilyDialog::~FamilyDialog() {
  search_.forgetFamily();
}

void FamilyDialog::build() {
  lines_ = new QTreeWidget(this);
  lines_->setHeaderLabels(
      {tr("Registro"), tr("Nombre"), tr("Fecha"), tr("Enlace"), tr("Por qué"), tr("Dónde está")});
  lines_->setRootIsDecorated(false);
  lines_->setUniformRowHeights(true);
  lines_->setIconSize(QSize(1, 1) * (fontMetrics().height() + 4));  // and so the rows
  lines_->setAllColumnsShowFocus(true);
  lines_->setAccessibleName(tr("La persona y su familia"));
  status_ = new QLabel(tr("Se está reuniendo…"), this);
  status_->setWordWrap(true);
  auto* layout = new QVBoxLayout(this);
  details_ = new QLabel(this);
  details_->setWordWrap(true);
  layout->addWidget(lines_, 1);
  layout->addWidget(details_);
  layout->addWidget(status_);
  auto* foot = new QHBoxLayout;
  for (const Button& b : BUTTONS) {
    auto* button = new QPushButton(tr(b.text), this);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, act = b.act] { this->act(act); });
    buttons_[b.act] = button;
    foot->addWidget(button);
  }
  foot->addStretch();
  auto* close = new QPushButton(tr("Ce&rrar"), this);
  close->setAutoDefault(false);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  foot->addWidget(close);
  layout->addLayout(foot);
  connect(lines_, &QTreeWidget::itemDoubleClicked, this, [this] { act(SearchBox::Act::Open); });
  connect(lines_, &QTreeWidget::currentItemChanged, this, [this] { chosenChanged(); });
  chosenChanged();
}

void FamilyDialog::ask() {
  answered_ = false;
  search_.askFamily(in_, key_, [this](const search::Finder::Pages& pages) { show(pages); });
}

void FamilyDialog::show(const search::Finder::Pages& pages) {
  const int kept = lines_->currentItem() ? lines_->currentItem()->data(0, HIT).toInt() : 0;
  answered_ = true;
  lines_->clear();
  hits_.clear();
  for (const search::FamilyPage& page : pages.pages) addPage(page);
  lines_->expandAll();
  for (int column = 0; column < lines_->columnCount(); ++column) {
    lines_->resizeColumnToContents(column);
    lines_->setColumnWidth(column, std::min(lines_->columnWidth(column), width() * 2 / 5));
  }
  const QString none = tr("Esta partida ya no está.");
  status_->setText(!pages.fault.empty()
                       ? tr("No se puede reunir: %1").arg(QString::fromStdString(pages.fault))
                   : pages.pages.empty() ? none
                                         : tr("Se ha reunido por los nombres, las fechas y los "
                                              "padres. Los enlaces dudosos hay que comprobarlos; "
                                              "nada de esto se guarda."));
  for (QTreeWidgetItemIterator at(lines_); *at; ++at)
    if ((*at)->data(0, HIT).isValid() && (*at)->data(0, HIT).toInt() == kept)
      lines_->setCurrentItem(*at);
  lines_->setFocus();
  chosenChanged();
}

void FamilyDialog::addPage(const search::FamilyPage& page) {
  auto* person = new QTreeWidgetItem(lines_, {QString::fromStdString(page.name)});
  QFont bold = font();
  bold.setBold(true);
  person->setFont(0, bold);
  person->setFirstColumnSpanned(true);
  person->setFlags(Qt::ItemIsEnabled);
  QTreeWidgetItem* group = nullptr;
  std::optional<search::Kinship> in;
  for (const search::Kin& kin : page.kin) {
    if (in != kin.kinship) {
      group = new QTreeWidgetItem(person, {tr(titleOf(kin.kinship))});
      group->setFirstColumnSpanned(true);
      group->setFlags(Qt::ItemIsEnabled);
      in = kin.kinship;
    }
    addLine(group, kin);
  }
}

void FamilyDialog::addLine(QTreeWidgetItem* under, const search::Kin& kin) {
  const search::Hit& hit = kin.hit;
  const QString annulled = hit.annulled ? tr(" (ANULADA)") : QString();
  auto* line = new QTreeWidgetItem(
      under, {registerOf(hit) + annulled, QString::fromStdString(hit.name), daysOf(hit),
              kin.sure ? tr("Claro") : tr("Dudoso"), QString::fromStdString(kin.reason),
              QString::fromStdString(hit.where)});
  line->setIcon(0, iconOf(hit, palette()));
  line->setData(0, HIT, static_cast<int>(hits_.size()));
  QFont italic = font();
  italic.setItalic(true);
  for (int column = 0; column < lines_->columnCount(); ++column) {
    if (!kin.sure) line->setFont(column, italic);
    line->setToolTip(column, line->text(column));
  }
  hits_.push_back(hit);
}

const search::Hit* FamilyDialog::chosen() const {
  const QTreeWidgetItem* item = lines_->currentItem();
  if (!item || !item->data(0, HIT).isValid()) return nullptr;
  return &hits_[static_cast<std::size_t>(item->data(0, HIT).toInt())];
}

void FamilyDialog::chosenChanged() {
  const search::Hit* hit = chosen();
  const QTreeWidgetItem* line = lines_->currentItem();
  details_->setText(hit ? tr("<b>%1:</b> %2.<br><b>Por qué:</b> %3.")
                              .arg(line->text(0).toHtmlEscaped(), line->text(5).toHtmlEscaped(),
                                   line->text(4).toHtmlEscaped())
                        : QString("<br>"));
  for (const auto& [act, button] : buttons_) button->setEnabled(hit != nullptr);
  buttons_[SearchBox::Act::Print]->setEnabled(hit &&
                                              printingCommand(choiceOf(*hit, search_.edition())));
}

void FamilyDialog::act(SearchBox::Act act) {
  if (!chosen() || !buttons_[act]->isEnabled() || !chosen_) return;
  const search::Hit hit = *chosen();
  chosen_(act, hit);
}

void FamilyDialog::keyPressEvent(QKeyEvent* event) {
  const bool ctrl = event->modifiers() & Qt::ControlModifier;
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    return act(ctrl ? SearchBox::Act::ShowInBook : SearchBox::Act::Open);
  if (ctrl && event->key() == Qt::Key_P) return act(SearchBox::Act::Print);
  QDialog::keyPressEvent(event);
}

}  // namespace fidaleon::app
