#include "window/SearchBox.h"

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "store/Open.h"
#include "window/FoundRow.h"
#include "window/Icons.h"

namespace fidaleon::app {
namespace {

using namespace std::chrono_literals;

constexpr auto AFTER_THE_WINDOW = 1500ms;
constexpr auto OTHERS_EVERY = 5s;
constexpr int WIDEST = 900;
constexpr int MOST_ROWS = 9;

struct Button {
  SearchBox::Act act;
  const char* text;
  const char* key;
};
const Button BUTTONS[] = {{SearchBox::Act::Open, "Abrir", "Intro"},
                          {SearchBox::Act::Print, "Certificado", "Ctrl+P"},
                          {SearchBox::Act::ShowInBook, "Ver en su lista", "Ctrl+Intro"},
                          {SearchBox::Act::ShowFamily, "La persona y su familia", "Ctrl+M"}};

}  // namespace

SearchBox::SearchBox(Desk& desk, Chosen chosen, QWidget* window)
    : QLineEdit(window), desk_(desk), chosen_(std::move(chosen)), others_(desk.parish()) {
  setObjectName("search");
  setPlaceholderText(tr("Buscar en todo  (Ctrl+K)"));
  setToolTip(
      tr("Busca en todos los registros, las solicitudes y el padrón: nombres, apellidos, padres, "
         "padrinos, años, libros y lugares (Ctrl+K)"));
  setAccessibleName(tr("Buscar en todo"));
  setClearButtonEnabled(true);
  addAction(icon("search", palette()), QLineEdit::LeadingPosition);
  buildPanel(window);
  window->installEventFilter(this);
  connect(this, &QLineEdit::textChanged, this, [this] { typed(); });
  QTimer::singleShot(AFTER_THE_WINDOW, this, [this] { start(); });
  auto* timer = new QTimer(this);
  connect(timer, &QTimer::timeout, this, [this] {
    if (finder_ && others_.since()) finder_->othersStored();
  });
  timer->start(OTHERS_EVERY);
}

SearchBox::~SearchBox() {
  finder_.reset();  // before anything that it tells
}

void SearchBox::start() {
  if (finder_) return;
  const std::filesystem::path parish = desk_.parish().Properties("DATA SOURCE").Value;
  const auto later = [this](auto then) {
    QMetaObject::invokeMethod(this, std::move(then), Qt::QueuedConnection);
  };
  search::Finder::Listener listener;
  listener.answered = [this, later](search::Finder::Answer answer) {
    later([this, answer = std::move(answer)] { answered(answer); });
  };
  listener.progressed = [this, later](search::Finder::Progress progress) {
    later([this, progress] { progressed(progress); });
  };
  listener.familyFound = [this, later](search::Finder::Pages pages) {
    later([this, pages = std::move(pages)] {
      if (family_) family_(pages);
    });
  };
  finder_ = std::make_unique<search::Finder>(
      [parish] { return store::openDatabase(parish, store::parishSchema()); },
      search::IndexFile::fileIn(parish.parent_path()), std::move(listener));
}

void SearchBox::askFamily(search::Register in, std::int32_t key, Family then) {
  start();
  family_ = std::move(then);
  finder_->familyOf(in, key);
}

void SearchBox::touched(const store::TouchedRows::Rows& rows) {
  if (finder_) finder_->touched(rows);
}

void SearchBox::buildPanel(QWidget* window) {
  panel_ = new QFrame(window);
  panel_->setFrameShape(QFrame::StyledPanel);
  panel_->setAutoFillBackground(true);
  panel_->hide();
  list_ = new FoundList(panel_);
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setFrameShape(QFrame::NoFrame);
  status_ = new QLabel(panel_);
  status_->setWordWrap(true);
  auto* layout = new QVBoxLayout(panel_);
  layout->setContentsMargins(1, 1, 1, 4);
  layout->addWidget(list_);
  auto* foot = new QHBoxLayout;
  foot->setContentsMargins(6, 0, 6, 0);
  foot->addWidget(status_, 1);
  for (const Button& b : BUTTONS) {
    auto* button = new QPushButton(tr(b.text), panel_);
    button->setFocusPolicy(Qt::NoFocus);
    button->setToolTip(QString(b.key));
    connect(button, &QPushButton::clicked, this, [this, act = b.act] { this->act(act); });
    buttons_[b.act] = button;
    foot->addWidget(button);
  }
  layout->addLayout(foot);
  connect(list_, &QListView::doubleClicked, this, [this] { act(Act::Open); });
  connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this] { chosenChanged(); });
}

void SearchBox::typed() {
  pending_.reset();
  showPanel(!text().trimmed().isEmpty());
  if (panel_->isVisible()) ask();
}

void SearchBox::ask() {
  start();
  finder_->find(text().toStdString());
}

void SearchBox::answered(const search::Finder::Answer& answer) {
  const QString typed = QString::fromStdString(answer.typed);
  if (typed != text()) return;
  const search::Hit* before = typed == answered_ ? list_->chosen() : nullptr;
  const std::pair kept =
      before ? std::pair{before->in, before->key} : std::pair{search::Register::Baptism, 0};
  answered_ = typed;
  fault_ = QString::fromStdString(answer.fault);
  more_ = answer.found.more;
  enough_ = answer.found.asked;
  list_->show(answer.found.hits);
  for (int row = 0; row < list_->hits().rowCount(); ++row) {
    const search::Hit& hit = list_->hits().hit(row);
    if (std::pair{hit.in, hit.key} == kept) list_->setCurrentIndex(list_->hits().index(row));
  }
  chosenChanged();
  showStatus();
  place();
  if (const auto pending = std::exchange(pending_, {})) act(*pending);
}

void SearchBox::progressed(const search::Finder::Progress& progress) {
  progress_ = progress;
  if (panel_->isVisible()) ask();
  showStatus();
}

void SearchBox::showStatus() {
  const int count = list_->hits().rowCount();
  QString text = more_        ? tr("Hay más: siga escribiendo.")
                 : !enough_   ? tr("Siga escribiendo.")
                 : count == 0 ? tr("No se encuentra nada parecido.")
                 : count == 1 ? tr("Se ha encontrado 1.")
                              : tr("Se han encontrado %1.").arg(count);
  if (!fault_.isEmpty())
    text = tr("No se puede buscar: %1").arg(fault_);
  else if (!progress_.whole)
    text += tr(" Se está preparando la búsqueda (%1 %): aún no están todos.")
                .arg(progress_.thousandths / 10);
  status_->setText(text);
}

void SearchBox::showPanel(bool visible) {
  if (visible) place();
  panel_->setVisible(visible);
  if (visible) panel_->raise();
}

/// Below the box, as wide as it may be, as high as what was found.
void SearchBox::place() {
  QWidget* window = panel_->parentWidget();
  const int width = std::min(WIDEST, window->width() - 16);
  const QPoint below = mapTo(window, QPoint(this->width(), height() + 2));
  const int left = std::clamp(below.x() - width, 8, std::max(8, window->width() - width - 8));
  const int rows = std::clamp(list_->hits().rowCount(), 1, MOST_ROWS);
  const int foot = panel_->layout()->minimumSize().height() - list_->minimumSizeHint().height();
  const int room = window->height() - below.y() - 8;
  list_->setMinimumHeight(0);
  panel_->setGeometry(left, below.y(), width,
                      std::min(room, rows * list_->rowHeight() + std::max(foot, 44) + 8));
}

void SearchBox::chosenChanged() {
  const search::Hit* hit = list_->chosen();
  setAccessibleDescription(hit ? list_->currentIndex().data(Qt::AccessibleTextRole).toString()
                               : QString());
  Choice choice;
  if (hit) choice = choiceOf(*hit, edition());
  for (const auto& [act, button] : buttons_) button->setEnabled(hit != nullptr);
  buttons_[Act::Print]->setEnabled(hit && printingCommand(choice));
}

void SearchBox::act(Act act) {
  const search::Hit* chosen = list_->chosen();
  if (panel_->isVisible() && !isAnswered()) {
    pending_ = act;
    return;
  }
  if (!chosen || !panel_->isVisible() || !buttons_[act]->isEnabled()) return QApplication::beep();
  const search::Hit hit = *chosen;
  showPanel(false);
  chosen_(act, hit);
}

void SearchBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
    typed();
}

void SearchBox::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
    showPanel(false);
}

/// Keys that the window has commands for are the box's as long as it shows what was found.
bool SearchBox::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    auto* key = static_cast<QKeyEvent*>(event);
    const bool ctrl = key->modifiers() & Qt::ControlModifier;
    const auto is = [&](auto... keys) { return ctrl && ((key->key() == keys) || ...); };
    if (is(Qt::Key_K) ||
        (panel_->isVisible() && is(Qt::Key_P, Qt::Key_M, Qt::Key_Return, Qt::Key_Enter))) {
      event->accept();
      return true;
    }
  }
  return QLineEdit::event(event);
}

void SearchBox::keyPressEvent(QKeyEvent* event) {
  const bool ctrl = event->modifiers() & Qt::ControlModifier;
  const int page = std::max(1, list_->height() / list_->rowHeight() - 1);
  switch (event->key()) {
    case Qt::Key_Down:
      if (!panel_->isVisible())
        typed();
      else
        list_->move(1);
      return;
    case Qt::Key_Up:
      return list_->move(-1);
    case Qt::Key_PageDown:
      return list_->move(page);
    case Qt::Key_PageUp:
      return list_->move(-page);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return act(ctrl ? Act::ShowInBook : Act::Open);
    case Qt::Key_Escape:
      if (panel_->isVisible()) return showPanel(false);
      clear();
      return emit left();
    default:
      break;
  }
  if (ctrl && event->key() == Qt::Key_K) return selectAll();
  if (ctrl && event->key() == Qt::Key_P) return act(Act::Print);
  if (ctrl && event->key() == Qt::Key_M) return act(Act::ShowFamily);
  QLineEdit::keyPressEvent(event);
}

bool SearchBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && panel_->isVisible()) place();
  return QLineEdit::eventFilter(watched, event);
}

}  // namespace fidaleon::app
