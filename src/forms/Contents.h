#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace fidaleon::forms {

class Form;

/// What stands in one control that a user can change.
struct Field {
  std::string control;  // its name on the form
  std::string label;    // what the user reads in front of it; not compared
  /// Of a field its text; of a list that of the chosen line; of a list whose lines can be moved to
  /// another, all of them, one below the other.
  std::string text;
  std::int64_t data = 0;  // item data of the chosen line; 1 for a check or option that is on

  bool operator==(const Field& other) const {
    return control == other.control && text == other.text && data == other.data;
  }
};

/// What a user could lose with a form: a plain value that can be compared, kept elsewhere and put
/// back. Fields that are locked are left out, unless for a while only (Held.h).
struct Contents {
  std::vector<Field> fields;  // in tab order
  std::string own;            // Form::ownWork()

  bool operator==(const Contents&) const = default;

  static Contents of(const Form& form);
};

/// The fields of `now` that do not stand so in `before`.
std::vector<Field> changes(const Contents& before, const Contents& now);

/// One line for each: "NOMBRE: Ana". Of those without text, such as a list without a choice, too.
std::string readable(const std::vector<Field>& fields);

/// Their labels in one line, the first few of many: "NOMBRE, FECHA y 3 más".
std::string namesOf(const std::vector<Field>& fields);

/// Puts the fields on a loaded form the way code does, so that handlers run and lists that hang on
/// others follow. Gives those that do not stand there afterwards: a line that the list has no
/// longer, a field that is locked now.
std::vector<Field> putBack(Form& form, const std::vector<Field>& fields);

}  // namespace fidaleon::forms
