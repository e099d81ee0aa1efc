#include "window/CopiesDialog.h"

#include <QDate>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "parish/copies/CopyRetention.h"
#include "qt/Appearance.h"
#include "qt/Room.h"

namespace fidaleon::app {
namespace {

QDateTime toQt(const Moment& m) {
  return {QDate(m.day.year, m.day.month, m.day.day), QTime(m.hour, m.minute, m.second)};
}

Moment fromQt(const QDateTime& t) {
  return {{t.date().year(), t.date().month(), t.date().day()},
          t.time().hour(),
          t.time().minute(),
          t.time().second()};
}

QString room(std::uintmax_t bytes) {
  return QLocale().formattedDataSize(static_cast<qint64>(bytes), 1,
                                     QLocale::DataSizeTraditionalFormat);
}

/// Those that the program keeps.
std::uintmax_t bytesOf(const std::vector<SafetyCopy>& copies) {
  std::uintmax_t bytes = 0;
  for (const SafetyCopy& copy : copies)
    if (!copy.byHand()) bytes += copy.bytes;
  return bytes;
}

}  // namespace

QString spoken(const Moment& moment) {
  const QLocale spanish(QLocale::Spanish, QLocale::Spain);
  return spanish.toString(toQt(moment), "dddd, d 'de' MMMM 'de' yyyy, 'a las' H:mm:ss");
}

QString reasonFor(const SafetyCopy& copy) {
  return copy.byHand() ? QObject::tr("Copia hecha a mano") : QString::fromStdString(copy.before);
}

CopiesDialog::CopiesDialog(const SafetyCopies& copies, QWidget* parent)
    : QDialog(parent), copies_(copies.list()), directory_(copies.directory()) {
  setWindowTitle(tr("Volver a una copia"));
  auto* layout = new QVBoxLayout(this);
  auto* intro = new QLabel(
      copies_.empty()
          ? tr("Todavía no hay ninguna copia en esta parroquia: el programa guarda una antes de "
               "cada orden que elimina algo.\nCon «Otra copia…» puede elegir una que haya guardado "
               "en otro sitio.")
          : tr("El programa guarda una copia antes de cada orden que elimina algo. Elija aquella "
               "a la que quiere volver: la parroquia quedará como estaba entonces.\n\n"
               "Se conservan las %1 últimas, y de las anteriores una por semana durante un año, "
               "mientras no ocupen más de %2 en total. Ahora ocupan %3.")
                .arg(copies.kept())
                .arg(room(BYTES_KEPT))
                .arg(room(bytesOf(copies_))),
      this);
  intro->setWordWrap(true);
  layout->addWidget(intro);
  fillTable();
  layout->addWidget(table_);

  auto* buttons = new QDialogButtonBox(this);
  auto* back = buttons->addButton(tr("&Volver a esta copia…"), QDialogButtonBox::AcceptRole);
  auto* other = buttons->addButton(tr("&Otra copia…"), QDialogButtonBox::ActionRole);
  auto* close = buttons->addButton(tr("&Cerrar"), QDialogButtonBox::RejectRole);
  back->setEnabled(!copies_.empty());
  (copies_.empty() ? other : back)->setDefault(true);
  layout->addWidget(buttons);
  connect(back, &QPushButton::clicked, this, [this] { chooseRow(); });
  connect(other, &QPushButton::clicked, this, [this] { chooseFile(); });
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  connect(table_, &QTableWidget::cellDoubleClicked, this, [this] { chooseRow(); });
  qt::resizeWithin(*this, {qt::charsWidth(*this, 92), 420});
}

void CopiesDialog::fillTable() {
  table_ = new QTableWidget(static_cast<int>(copies_.size()), 3, this);
  table_->setHorizontalHeaderLabels({tr("Fecha y hora"), tr("Motivo de la copia"), tr("Tamaño")});
  table_->setAccessibleName(tr("Copias"));
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setAlternatingRowColors(true);
  table_->setShowGrid(false);
  table_->setTabKeyNavigation(false);
  table_->verticalHeader()->hide();
  for (int row = 0; row < table_->rowCount(); ++row) {
    const SafetyCopy& copy = copies_[static_cast<std::size_t>(row)];
    auto* bytes = new QTableWidgetItem(room(copy.bytes));
    bytes->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    table_->setItem(row, 0,
                    new QTableWidgetItem(toQt(copy.moment).toString("dd/MM/yyyy   HH:mm:ss")));
    table_->setItem(row, 1, new QTableWidgetItem(reasonFor(copy)));
    table_->setItem(row, 2, bytes);
    for (int column = 0; column < 3; ++column)
      table_->item(row, column)->setToolTip(QString::fromStdString(copy.file.string()));
  }
  QHeaderView* header = table_->horizontalHeader();
  header->setHighlightSections(false);
  header->setSectionResizeMode(1, QHeaderView::Stretch);
  table_->setColumnWidth(0, qt::charsWidth(*this, 26));
  table_->setColumnWidth(2, qt::charsWidth(*this, 13));
  if (table_->rowCount() > 0) table_->selectRow(0);
  table_->setFocus();
}

void CopiesDialog::chooseRow() {
  const int row = table_->currentRow();
  if (row >= 0) take(copies_[static_cast<std::size_t>(row)]);
}

void CopiesDialog::chooseFile() {
  const QString file = QFileDialog::getOpenFileName(
      this, tr("Elegir una copia"), QString::fromStdString(directory_.string()),
      tr("Copias (*.copia *.fidaleon *.zst);;Todos los archivos (*)"));
  if (file.isEmpty()) return;
  const QFileInfo facts(file);
  SafetyCopy copy;
  copy.file = file.toStdString();
  copy.moment = fromQt(facts.lastModified());
  copy.bytes = static_cast<std::uintmax_t>(facts.size());
  take(copy);
}

void CopiesDialog::take(const SafetyCopy& copy) {
  chosen_ = copy;
  accept();
}

}  // namespace fidaleon::app
