#pragma once

#include <QMainWindow>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "catalogue/Command.h"
#include "drafts/FormWatch.h"
#include "files/Identity.h"
#include "paper/Report.h"
#include "parish/Desk.h"
#include "parish/copies/Precaution.h"
#include "parish/server/ServerParish.h"
#include "store/ForeignChanges.h"
#include "store/RemovalWatch.h"
#include "store/TouchedRows.h"
#include "window/DailyCheck.h"
#include "window/ParishDoor.h"
#include "window/RowsFilter.h"
#include "window/RowsModel.h"
#include "window/SearchBox.h"

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QSplitter;
class QStackedWidget;
class QTableView;
class QTimer;
class QToolBar;
class QToolButton;
class QTreeView;

namespace fidaleon::app {

/// What is to come when the window has closed.
struct Departure {
  // Copy: back to one, since the parish is damaged. Move: to another place with its content.
  enum class To { End, Start, Parish, Copy, Move };
  To to = To::End;
  std::filesystem::path directory;  // of the parish
  std::optional<MoveOrder> move = {};
};

/// The window of the program: the tree on the left, the rows of its node on the right, and the
/// commands for both.
class MainWindow : public QMainWindow, private Workplace {
  Q_OBJECT

 public:
  /// `watch` keeps the drafts of the forms; null keeps none.
  explicit MainWindow(Desk& desk, FormWatch* watch = nullptr, QWidget* parent = nullptr);
  ~MainWindow() override;

  void showNode(const std::string& name) override;
  void showEntriesOf(const Sacramento& sacrament, std::int32_t book) override;
  Choice choice() const;
  /// The action of a command; never null for an id of the table.
  QAction* action(const std::string& command) const;
  QTableView& table() { return *table_; }
  QLineEdit& filter() { return *filter_; }
  SearchBox& search() { return *search_; }
  /// Tells of entries that lack a row, and shows them to whoever wants to see them.
  void tellOfIncompleteEntries();
  /// Chooses the row of that key; false when the list does not show it.
  bool chooseRow(std::int32_t key);
  /// Rows are still being read.
  bool isReading() const { return !rows_.isRead(); }
  /// Where the user goes from here.
  const Departure& departure() const { return departure_; }
  DailyCheck& dailyCheck() { return daily_; }
  /// Shows the list anew when another desk has changed the parish, with the row that was chosen and
  /// the part that was in sight; not while a dialog or menu is open. Runs by itself now and then.
  void renewIfChanged();
  /// Asks whether to go on with what was being typed when a program ended.
  void offerDrafts();

 signals:
  /// The user asks what the manual says under that name.
  void helpWanted(const std::string& name);

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // What commands work with.
  cNucleo& nucleo() override { return desk_.nucleo(); }
  Entorno& entorno() override { return desk_.entorno(); }
  FDAPI::Conexion& parish() override { return desk_.parish(); }
  const FDAPI::cConfig& config() const override { return desk_.config(); }
  void showDocument(const Documento& document, std::int32_t id) override;
  void showListReport(const ListReport& report, Extent extent) override;
  void makeDocumentsOfChosen(const Choice& chosen) override;
  void focusFilter() override;
  void showFamily(const Choice& chosen) override;
  void focusSearch() override;
  void saveList(Extent extent) override;
  void backUp() override;
  void returnToCopy() override;
  void readListAnew() override { renew(); }
  void chooseColumns() override;
  void importLegacy() override;
  void help(const std::string& name) override;
  void about() override;
  void preferences() override;
  void newParish() override;
  void openParish() override;
  void connectToServer() override;
  void moveParish() override;
  void closeParish() override { depart({Departure::To::Start, {}}); }
  /// When the command that asked for it has ended: until then the window refuses to close.
  void leave() override { depart({}); }
  void depart(Departure departure);
  FormWatch::Resumed resume(const Task& task);

  void buildTree();
  void buildList();
  /// Rows as high and columns as wide as the letters of the list need.
  void fitLetters();
  void buildCommands();
  void buildStatusBar();
  void fillRecent();
  void nodeChosen();
  void setScope(std::int32_t group, const QString& name);
  void selectFirst();
  using Maker = std::function<std::optional<paper::Report>(paper::ReportOptions)>;
  void preview(const Maker& make);
  void run(const Command& command) { run(command, choice()); }
  void run(const Command& command, const Choice& chosen);
  void runOnFound(SearchBox::Act act, const search::Hit& hit);
  /// Shows its list, with the row chosen.
  void showInList(const Choice& row);
  void openFamily(search::Register in, std::int32_t key);
  /// Makes sure that there is a copy before the command takes anything away.
  void carryOut(const Command& command, const Choice& chosen);
  /// Makes the copy that goes before the command. False when there can be none and the user would
  /// rather not go on.
  bool protect(const Command& command, const Choice& chosen, std::unique_ptr<Precaution>& copy);
  void compressCopies();
  /// Keeps a copy of the whole. False when there is none and the user would rather not go on.
  bool copyBefore(const std::string& what);
  /// Whether the parish is still under its name; the user has been told otherwise.
  bool isInPlace();
  bool isDamaged() const;
  void takeUpLog();
  /// Tells the user, with the way back.
  void sayDamaged();
  bool offerWayOut(const QString& what, const QString& meaning, const QString& way);
  void showParishName();
  /// After a command: reads what it has touched, or, where that is not known, the list.
  void refresh(const Command& after, std::int32_t keep);
  /// Every one of them is told to the search.
  store::TouchedRows::Rows takeTouched();
  struct Touched {
    bool all = false;  // any row may be
    std::vector<std::int32_t> keys;
  };
  Touched touchedRows();
  void update(const std::vector<std::int32_t>& keys, bool mayAdd, bool& anew);
  void loadRows();
  /// Reads the list in the background and then puts it in the place of the one that is shown.
  void renew(bool chooseAdded = false);
  /// Does a part of the reading, and sees to it that it goes on.
  void reading(const std::function<RowsModel::Reading()>& read);
  void readingEnded();
  void takeOver();
  /// With all rows, however long that takes. False when the user did not want to wait.
  bool finishReading();
  void updateCommands();
  void updateCount();
  void showContextMenu(const QPoint& at);
  void openChosen();
  void filterChanged();
  void applyColumns();
  void showColumnsAsAtFirst();
  void rememberColumns();
  std::string read(const std::string& key) const;
  void write(const std::string& key, const std::string& value);
  void restoreWindow();

  Desk& desk_;
  FormWatch* watch_;
  ParishDoor door_;
  Departure departure_;
  SafetyCopies copies_;
  std::jthread compressing_;  // of copies that are not the newest
  store::RemovalWatch removals_;
  DailyCheck daily_;
  std::optional<files::Identity> identity_;  // of the parish that is open
  bool metDamage_ = false;
  store::ForeignChanges others_;
  store::TouchedRows touched_;
  QTimer* slices_ = nullptr;  // runs while the list is being read
  bool chooseAdded_ = false;
  const NodeView* node_ = nullptr;
  bool busy_ = false;
  QSplitter* splitter_ = nullptr;
  QTreeView* tree_ = nullptr;
  QStackedWidget* right_ = nullptr;
  QTableView* table_ = nullptr;
  QLineEdit* filter_ = nullptr;
  int letter_ = 0;                // width of one, for which the columns are laid out
  QToolButton* scope_ = nullptr;  // which book's rows are shown; takes the limit away
  QLabel* folder_ = nullptr;
  QLabel* empty_ = nullptr;
  QLabel* count_ = nullptr;
  QLabel* parishName_ = nullptr;
  QToolBar* bar_ = nullptr;
  SearchBox* search_ = nullptr;
  QMenu* recent_ = nullptr;
  RowsModel rows_;
  RowsFilter shown_;
  std::map<std::string, QAction*> actions_;
};

}  // namespace fidaleon::app
