#include "forms/Contents.h"

#include <algorithm>
#include <map>
#include <optional>

#include "forms/Form.h"
#include "forms/Held.h"
#include "text/Utf8.h"

namespace fidaleon::forms {
namespace {

// A line chosen in one list fills another, and what that one proposes may fall over a field that
// has been put back already.
constexpr int ROUNDS = 4;
constexpr std::size_t NAMED = 6;

std::string labelOf(const Control& control) {
  std::string caption;
  if (control.label()) caption = control.label()->caption();
  if (const auto* check = dynamic_cast<const CheckBox*>(&control)) caption = check->caption();
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) caption = option->caption();
  caption = text::trim(text::replaceAll(caption, "&", ""));
  if (caption.ends_with(':')) caption.pop_back();
  if (caption.empty()) return control.name();
  // Tabs within a tab ask the same of several persons.
  const TabStrip* strip = control.strip();
  return strip && strip->strip() ? strip->caption(control.page()) + ": " + caption : caption;
}

/// "NOVIA (D. Personales)" is about the "novia".
std::string titleOf(const std::string& caption) {
  const std::string title = text::trim(caption.substr(0, caption.find('(')));
  return text::lower(title.ends_with(':') ? title.substr(0, title.size() - 1) : title);
}

std::string tabOf(const Control& control) {
  return control.strip() ? titleOf(control.strip()->caption(control.page())) : std::string();
}

std::string frameOf(const Control& control) {
  return control.frame() ? titleOf(control.frame()->caption()) : std::string();
}

/// Fields that are called alike get the name of their tab, and of their frame where that is not
/// enough: "NOMBRE (novia)".
void tellApart(const Form& form, std::vector<Field>& fields) {
  std::vector<std::string> where(fields.size());
  for (const auto place : {tabOf, frameOf}) {
    std::map<std::string, int> count;
    const auto name = [&](std::size_t i) { return fields[i].label + "\n" + where[i]; };
    for (std::size_t i = 0; i < fields.size(); ++i) ++count[name(i)];
    for (std::size_t i = 0; i < fields.size(); ++i) {
      if (count.at(name(i)) < 2) continue;
      const std::string more = place(*form.find(fields[i].control));
      where[i] += (where[i].empty() || more.empty() ? "" : ", ") + more;
    }
  }
  for (std::size_t i = 0; i < fields.size(); ++i)
    if (!where[i].empty()) fields[i].label += " (" + where[i] + ")";
}

std::string allLines(const ListBox& list) {
  std::string lines;
  for (int i = 0; i < list.listCount(); ++i) lines += list.list(i) + "\n";
  return lines;
}

/// Nothing for a control that holds nothing of the user's.
std::optional<Field> fieldOf(const Control& control) {
  Field field{control.name(), {}, {}, 0};
  const bool held = control.Tag == HELD;
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
    if ((box->locked() && !held) || box->password()) return std::nullopt;
    field.text = box->text();
  } else if (const auto* list = dynamic_cast<const ListControl*>(&control)) {
    if (list->locked() && !held) return std::nullopt;
    const auto* lines = dynamic_cast<const ListBox*>(list);
    field.text = lines ? allLines(*lines) : list->text();
    field.data = lines ? 0 : list->data();
  } else if (const auto* check = dynamic_cast<const CheckBox*>(&control)) {
    field.data = check->value();
  } else if (const auto* option = dynamic_cast<const OptionButton*>(&control)) {
    field.data = option->value();
  } else {
    return std::nullopt;
  }
  field.label = labelOf(control);
  return field;
}

const Field* named(const Contents& contents, const std::string& control) {
  for (const Field& field : contents.fields)
    if (field.control == control) return &field;
  return nullptr;
}

void choose(ListControl& list, const Field& field) {
  if (field.text.empty() && field.data == 0) return list.setListIndex(-1);
  const bool byKey = field.data != 0 && list.selectData(field.data);
  if (!byKey) list.selectText(field.text);
}

/// The line may bear another name by now: its key says that it is the same.
bool standsThere(const Control& control, const Field& field) {
  const std::optional<Field> now = fieldOf(control);
  if (!now) return false;
  const bool sameLine =
      field.data != 0 && now->data == field.data && dynamic_cast<const ListControl*>(&control);
  return *now == field || sameLine;
}

void put(Control& control, const Field& field) {
  if (!control.usable() || !fieldOf(control)) return;
  if (auto* box = dynamic_cast<TextBox*>(&control)) box->setText(field.text);
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) choose(*combo, field);
  if (auto* check = dynamic_cast<CheckBox*>(&control)) check->setValue(field.data != 0);
  auto* option = dynamic_cast<OptionButton*>(&control);
  if (option && field.data != 0) option->setValue(true);
}

}  // namespace

Contents Contents::of(const Form& form) {
  Contents all;
  for (const Control* control : form.tabOrder())
    if (auto field = fieldOf(*control)) all.fields.push_back(std::move(*field));
  tellApart(form, all.fields);
  all.own = form.ownWork();
  return all;
}

std::vector<Field> changes(const Contents& before, const Contents& now) {
  std::vector<Field> changed;
  for (const Field& field : now.fields) {
    const Field* was = named(before, field.control);
    if (!was || !(*was == field)) changed.push_back(field);
  }
  return changed;
}

std::string readable(const std::vector<Field>& fields) {
  std::string lines;
  for (const Field& field : fields) {
    const bool sign = field.text.empty() && field.data != 0;
    lines += field.label + ": " + (sign ? "sí" : field.text) + "\n";
  }
  return lines;
}

std::string namesOf(const std::vector<Field>& fields) {
  std::string names;
  for (std::size_t i = 0; i < std::min(fields.size(), NAMED); ++i)
    names += (i == 0 ? "" : ", ") + fields[i].label;
  if (fields.size() > NAMED) names += " y " + std::to_string(fields.size() - NAMED) + " más";
  return names;
}

std::vector<Field> putBack(Form& form, const std::vector<Field>& fields) {
  std::vector<Field> left = fields;
  for (int round = 0; round < ROUNDS && !left.empty() && !form.isUnloaded(); ++round) {
    for (const Field& field : left) {
      Control* control = form.find(field.control);
      if (control && !standsThere(*control, field)) put(*control, field);
    }
    left.clear();
    for (const Field& field : fields) {
      const Control* control = form.find(field.control);
      if (!control || !standsThere(*control, field)) left.push_back(field);
    }
  }
  return left;
}

}  // namespace fidaleon::forms
