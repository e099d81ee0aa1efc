#pragma once

#include <QLineEdit>
#include <functional>
#include <map>
#include <memory>
#include <optional>

#include "parish/Desk.h"
#include "search/Finder.h"
#include "store/ForeignChanges.h"
#include "window/FoundList.h"

class QFrame;
class QLabel;
class QPushButton;

namespace fidaleon::app {

/// The box for the search over everything, and below it, over the window, what is found as one
/// types. The keys stay in the box; arrows choose, Enter opens. Its search begins a moment after
/// the window is there.
class SearchBox : public QLineEdit {
  Q_OBJECT

 public:
  enum class Act { Open, Print, ShowInBook, ShowFamily };
  /// What is to be done with a hit. The box has closed by then.
  using Chosen = std::function<void(Act, const search::Hit&)>;

  SearchBox(Desk& desk, Chosen chosen, QWidget* window);
  ~SearchBox() override;

  void start();
  /// What this desk has stored.
  void touched(const store::TouchedRows::Rows& rows);
  /// Has the entry's family put together; `then` is called once it is, unless another one has been
  /// asked for by then.
  using Family = std::function<void(const search::Finder::Pages&)>;
  void askFamily(search::Register in, std::int32_t key, Family then);
  void forgetFamily() { family_ = {}; }
  /// Of the parish.
  const std::string& edition() const { return desk_.entorno().installation.Aplicacion; }
  FoundList& found() { return *list_; }
  /// The answer to what stands in the box has come.
  bool isAnswered() const { return answered_ == text(); }
  /// All entries can be found.
  bool isWhole() const { return progress_.whole; }

 signals:
  /// By Escape, with nothing left in it.
  void left();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void buildPanel(QWidget* window);
  void typed();
  void ask();
  void answered(const search::Finder::Answer& answer);
  void progressed(const search::Finder::Progress& progress);
  void showStatus();
  void showPanel(bool visible);
  void place();
  void act(Act act);
  void chosenChanged();

  Desk& desk_;
  Chosen chosen_;
  QFrame* panel_ = nullptr;
  FoundList* list_ = nullptr;
  QLabel* status_ = nullptr;
  std::map<Act, QPushButton*> buttons_;
  QString answered_;
  std::optional<Act> pending_;  // was asked for before the answer had come
  QString fault_;
  bool more_ = false;
  bool enough_ = true;  // was typed to be looked for
  Family family_;
  search::Finder::Progress progress_;
  store::ForeignChanges others_;
  std::unique_ptr<search::Finder> finder_;
};

}  // namespace fidaleon::app
