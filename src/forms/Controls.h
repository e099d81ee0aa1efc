#pragma once
// The controls that dialogs are made of.

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Control.h"
#include "text/Dates.h"

namespace fidaleon::forms {

/// A text that stands on the form, most often in front of a control. "&" marks a mnemonic.
class Label : public Control {
 public:
  Label(Form& form, std::string name, std::string caption = {});
  const std::string& caption() const { return caption_; }
  void setCaption(std::string caption);
  /// Bold and in the colour of warnings: the mark of an annulled entry and its like.
  bool emphasised() const { return emphasised_; }
  void setEmphasised(bool on) {
    emphasised_ = on;
    changed(Change::Caption);
  }

 private:
  std::string caption_;
  bool emphasised_ = false;
};

/// A titled group. Hiding or disabling it reaches all that lies in it.
class Frame : public Control {
 public:
  Frame(Form& form, std::string name, std::string caption = {});
  const std::string& caption() const { return caption_; }
  void setCaption(std::string caption);

 private:
  std::string caption_;
};

/// What becomes of a double quote, which may never reach a stored statement. A typed one always
/// becomes two apostrophes; this says what happens, on leaving the field, to one that came by
/// another way (paste, code).
enum class QuoteRule { Replace, Remove, Keep };

/// What stands for a text that is not there.
inline constexpr const char* DASHES = "---";

/// A field for text. Positions and lengths count code points.
class TextBox : public Control {
 public:
  TextBox(Form& form, std::string name, std::string caption = {});

  const std::string& text() const { return text_; }
  /// From code; fires onChange when the text differs.
  void setText(const std::string& text);
  /// The same from the user's side: keeps to maxLength and to one line, refused when locked.
  void enterText(const std::string& text);

  /// Shown and selectable, but not to be changed by the user. In a form that can only be read all
  /// are, also those that are otherwise disabled.
  bool locked() const;
  bool enabled() const override;
  void setLocked(bool on);
  int maxLength() const { return maxLength_; }  // 0: no limit
  void setMaxLength(int n);
  /// Lines shown; more than one makes the field multi-line (line break is CR LF in `text()`).
  int lines() const { return lines_; }
  void setLines(int n) { lines_ = n; }
  /// As high as its text, and never less than its lines.
  bool grows() const { return grows_; }
  void setGrows(bool on) { grows_ = on; }
  bool multiline() const { return lines_ > 1 || grows_; }
  bool password() const { return password_; }
  void setPassword(bool on) { password_ = on; }
  /// Only the digits 0-9 can be typed or entered.
  bool digitsOnly() const { return digitsOnly_; }
  void setDigitsOnly(bool on) { digitsOnly_ = on; }
  QuoteRule quoteRule() const { return quoteRule_; }
  void setQuoteRule(QuoteRule rule) { quoteRule_ = rule; }

  void take(const Offer& offer) override;

  /// A quiet mark under the text, with the reason; empty takes it away, and so does any change.
  const std::string& doubt() const { return doubt_; }
  void setDoubt(std::string why);
  /// It holds dashes alone: shown pale, and gone with the first key.
  bool holdsDashes() const { return text_ == DASHES; }
  /// All that can belong to it has been typed: in a form whose fields Enter goes through, it leaves
  /// by itself.
  virtual bool complete() const { return false; }
  /// Enter breaks the line. In a form whose fields it goes through, not of a text not yet begun.
  bool breaksLines() const;

  int selStart() const { return selStart_; }
  int selLength() const { return selLength_; }
  void setSelection(int start, int length);
  void selectAll();

  std::function<void()> onChange;
  /// What the user may make of the text; unset, anything. A key or a paste that would make
  /// something else of it is refused with a beep. Text from code stands as it is, and one that does
  /// not fit can be made shorter.
  std::function<bool(const std::string& text)> fits;

  bool canTakeFocus() const override { return true; }
  /// One line is selected whole, so that what is typed takes its place; a text of several lines is
  /// not, lest one key wipe it out.
  void enteredByFocus() override;
  void leftByFocus(Control* next) override;
  /// Runs onKeyPress and the quote rule over a key, then types it. Without a window only.
  void press(KeyPress key);
  /// The handlers' part of press(): what shall happen to the key. A window types it itself.
  void filterKey(KeyPress& key);
  void insertAtCaret(const std::string& text);

 protected:
  virtual std::string accepted(const std::string& text) const;

 private:
  bool refuses(const std::string& next) const;
  std::string withTyped(const KeyPress& key) const;

  std::string text_;
  bool locked_ = false;
  int maxLength_ = 0;
  int lines_ = 1;
  bool grows_ = false;
  bool password_ = false;
  bool digitsOnly_ = false;
  QuoteRule quoteRule_ = QuoteRule::Replace;
  std::string doubt_;
  int selStart_ = 0;
  int selLength_ = 0;
};

/// A text field for a date "dd/mm/yyyy" that may be empty; a window adds a calendar. On leaving,
/// a date typed in a shorter way (text::parseTyped, by Form::dateSense) takes its full form; a text
/// that is no day of the calendar is told to the user and kept for mending.
class DateField : public TextBox {
 public:
  DateField(Form& form, std::string name, std::string caption = {});
  /// "yyyymmdd"; empty when the field is empty or no date.
  std::string stored() const;
  /// "", "---" and Null texts empty the field.
  void setStored(std::string_view yyyymmdd);
  void setToday(const std::string& yyyymmdd) { setStored(yyyymmdd); }
  /// Empty or a day of the calendar.
  bool valid() const;
  /// A day with all figures of its year.
  bool complete() const override;
  void leftByFocus(Control* next) override;

 private:
  std::optional<text::Date> read() const;
};

/// A text field for a time of day "HH:mm" that may be empty.
class TimeField : public TextBox {
 public:
  TimeField(Form& form, std::string name, std::string caption = {});
  /// "HH:mm"; empty when the field is empty or no time.
  std::string stored() const;
  void setStored(std::string_view time);
  bool valid() const;
  bool complete() const override;
  void leftByFocus(Control* next) override;
};

/// Lines with a number behind each (item data), one of them chosen or none (-1).
class ListControl : public Control {
 public:
  ListControl(Form& form, std::string name, std::string caption = {});

  int addItem(std::string text, std::int64_t data = 0);
  void removeItem(int index);
  void clear();
  int listCount() const { return static_cast<int>(items_.size()); }
  const std::string& list(int index) const { return items_.at(index).text; }
  std::int64_t itemData(int index) const { return items_.at(index).data; }

  int listIndex() const { return listIndex_; }
  /// Fires onClick, from code too, also when the index stays the same; out of range chooses none
  /// and fires nothing.
  void setListIndex(int index);
  /// False, and nothing changed, when the list holds no such line.
  bool selectData(std::int64_t data);
  bool selectText(std::string_view text);
  /// Text of the chosen line, empty when none is.
  std::string text() const;
  /// Item data of the chosen line, 0 when none is.
  std::int64_t data() const;
  /// Chooses from the user's side: refused when locked or disabled.
  bool userSelect(int index);

  bool locked() const;
  void setLocked(bool on);

  std::function<void()> onClick;
  std::function<void()> onDblClick;

  bool canTakeFocus() const override { return true; }

 private:
  struct Item {
    std::string text;
    std::int64_t data;
    bool selected = false;
  };
  friend class ListBox;
  std::vector<Item> items_;
  int listIndex_ = -1;
  bool locked_ = false;
};

class ComboBox : public ListControl {
 public:
  using ListControl::ListControl;
  /// Runs onOffer; without one, chooses the line with the offer's data.
  void take(const Offer& offer) override;
  std::function<void(const Offer& offer)> onOffer;
};

class ListBox : public ListControl {
 public:
  using ListControl::ListControl;
  /// Several lines may be selected at once, beside the chosen one.
  bool multiSelect() const { return multiSelect_; }
  void setMultiSelect(bool on) { multiSelect_ = on; }
  bool selected(int index) const;
  void setSelected(int index, bool on);
  int selCount() const;
  int rows() const { return rows_; }
  void setRows(int n) { rows_ = n; }

 private:
  bool multiSelect_ = false;
  int rows_ = 8;
};

class CheckBox : public Control {
 public:
  CheckBox(Form& form, std::string name, std::string caption = {});
  const std::string& caption() const { return caption_; }
  bool value() const { return value_; }
  void setValue(bool on);
  bool enabled() const override;
  std::function<void()> onClick;
  bool canTakeFocus() const override { return true; }

 private:
  std::string caption_;
  bool value_ = false;
};

/// One of several choices; those with the same group name exclude each other.
class OptionButton : public Control {
 public:
  OptionButton(Form& form, std::string name, std::string caption, std::string group);
  const std::string& caption() const { return caption_; }
  const std::string& group() const { return group_; }
  bool value() const { return value_; }
  /// Choosing fires onClick, from code too; taking back fires nothing.
  void setValue(bool on);
  bool enabled() const override;
  std::function<void()> onClick;
  bool canTakeFocus() const override { return true; }

 private:
  std::string caption_;
  std::string group_;
  bool value_ = false;
};

class Button : public Control {
 public:
  Button(Form& form, std::string name, std::string caption = {});
  const std::string& caption() const { return caption_; }
  void setCaption(std::string caption);
  /// Pressed by Enter anywhere on the form.
  bool isDefault() const { return default_; }
  void setDefault(bool on) { default_ = on; }
  /// Pressed by Escape and by closing the window.
  bool isCancel() const { return cancel_; }
  void setCancel(bool on) { cancel_ = on; }
  bool enabled() const override;
  /// From code: fires whether enabled or not. A user's click goes through Form::userClick.
  void click();
  std::function<void()> onClick;
  bool canTakeFocus() const override { return true; }

 private:
  std::string caption_;
  bool default_ = false;
  bool cancel_ = false;
};

/// Rows of text under a fixed row 0 of headers. Each row may carry a hidden key. Column widths
/// are in twips, as they are kept in the settings; a window takes 75 for a letter.
class Grid : public Control {
 public:
  Grid(Form& form, std::string name);

  void setColumns(int n);
  int columns() const { return static_cast<int>(headers_.size()); }
  void setHeader(int column, std::string text);
  const std::string& header(int column) const { return headers_.at(column); }
  void setColumnWidth(int column, int twips);
  int columnWidth(int column) const { return widths_.at(column); }

  /// Down to the header.
  void clearRows();
  /// Gives the number of the new row (1 is the first under the header).
  int addRow(std::vector<std::string> cells, std::int64_t key = 0);
  void removeRow(int row);
  /// Rows under the header.
  int rowCount() const { return static_cast<int>(rows_.size()); }
  const std::string& cell(int row, int column) const;
  void setCell(int row, int column, std::string text);
  std::int64_t rowKey(int row) const { return rows_.at(row - 1).key; }
  void setRowKey(int row, std::int64_t key) { rows_.at(row - 1).key = key; }

  /// The chosen row, 0 when none is.
  int row() const { return row_; }
  /// Fires onRowChange, from code too.
  void setRow(int row);
  void userDblClick(int row);

  /// Holds back notices of change while many rows come in.
  void beginUpdate();
  void endUpdate();

  std::function<void()> onRowChange;
  std::function<void()> onDblClick;
  bool canTakeFocus() const override { return true; }

 private:
  struct Row {
    std::vector<std::string> cells;
    std::int64_t key;
  };
  void gridChanged();
  std::vector<std::string> headers_;
  std::vector<int> widths_;
  std::vector<Row> rows_;
  int row_ = 0;
  int updates_ = 0;
};

/// A row of tabs, or a list of them where they are many; what lies on each is said by the layout.
class TabStrip : public Control {
 public:
  static constexpr int MOST_IN_A_ROW = 8;

  TabStrip(Form& form, std::string name, std::vector<std::string> captions);
  int tabCount() const { return static_cast<int>(tabs_.size()); }
  const std::string& caption(int tab) const { return tabs_.at(tab).caption; }
  void setCaption(int tab, std::string caption);
  /// What the tab is about at the moment, such as the name of a person; shown beside its caption.
  const std::string& note(int tab) const { return tabs_.at(tab).note; }
  void setNote(int tab, std::string note);
  /// Too many to be read in one row.
  bool isList() const { return tabCount() > MOST_IN_A_ROW; }
  /// The next one that can be seen; -1 when there is none that far.
  int next(int tab, bool backwards) const;
  bool tabVisible(int tab) const { return tabs_.at(tab).visible; }
  void setTabVisible(int tab, bool on);
  int tab() const { return tab_; }
  /// From code: fires nothing.
  void setTab(int tab);
  /// The user's way: leaves the current field, asks onMouseDown, switches, fires onClick. False
  /// when the field or onMouseDown refused.
  bool userSelect(int tab);

  /// Asked before a switch; false keeps the tab in front.
  std::function<bool(int next)> onMouseDown;
  /// After a switch by the user; a handler that goes back does so with setTab.
  std::function<void(int previous)> onClick;
  bool canTakeFocus() const override { return true; }

 private:
  struct Page {
    std::string caption;
    bool visible = true;
    std::string note = {};
  };
  std::vector<Page> tabs_;
  int tab_ = 0;
};

class Progress : public Control {
 public:
  Progress(Form& form, std::string name);
  void Cargar(std::int64_t count, const std::string& message);
  std::int64_t count() const { return count_; }
  std::int64_t value() const { return value_; }
  void setValue(std::int64_t value);
  const std::string& message() const { return message_; }

 private:
  std::int64_t count_ = 0;
  std::int64_t value_ = 0;
  std::string message_;
};

/// Controls of one kind under one name, told apart by an index, which an enumerator may name:
/// txtBautismo[NombreHijo] is "txtBautismo(7)".
template <class T>
class ControlArray {
 public:
  ControlArray(Form& form, std::string name) : form_(form), name_(std::move(name)) {}

  template <class... Args>
  T& add(int index, Args&&... args) {
    auto made = std::make_unique<T>(form_, name_ + "(" + std::to_string(index) + ")",
                                    std::forward<Args>(args)...);
    T& control = *made;
    controls_[index] = std::move(made);
    return control;
  }
  T& operator[](int index) const { return *controls_.at(index); }
  bool has(int index) const { return controls_.count(index) != 0; }
  const std::map<int, std::unique_ptr<T>>& all() const { return controls_; }

 private:
  Form& form_;
  std::string name_;
  std::map<int, std::unique_ptr<T>> controls_;
};

}  // namespace fidaleon::forms
