#include "app/FormWatch.h"

#include <algorithm>
#include <fstream>

#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

class Opened {
 public:
  Opened(std::vector<const forms::Form*>& stack, const forms::Form& form) : stack_(stack) {
    stack_.push_back(&form);
  }
  ~Opened() { stack_.pop_back(); }

 private:
  std::vector<const forms::Form*>& stack_;
};

std::string valueOf(const forms::Control& control) {
  if (const auto* text = dynamic_cast<const forms::TextBox*>(&control))
    return text->password() ? std::string() : text->text();
  if (const auto* list = dynamic_cast<const forms::ListControl*>(&control)) return list->text();
  return {};
}

std::string labelOf(const forms::Control& control) {
  const std::string caption =
      control.label() ? text::replaceAll(control.label()->caption(), "&", "") : control.name();
  return caption.empty() || caption.back() == ':' ? caption : caption + ":";
}

std::string fieldsOf(const forms::Form& form) {
  std::string lines;
  for (const forms::Control* control : form.controls()) {
    const std::string value = valueOf(*control);
    if (!value.empty()) lines += labelOf(*control) + " " + value + "\n";
  }
  return lines;
}

}  // namespace

void FormWatch::showModal(forms::Form& form) {
  const Opened opened(open_, form);
  behind_.showModal(form);
}

forms::Answer FormWatch::showMessage(const forms::Message& message) {
  return behind_.showMessage(message);
}

std::optional<std::string> FormWatch::inputBox(const std::string& prompt, const std::string& title,
                                               const std::string& initial) {
  return behind_.inputBox(prompt, title, initial);
}

double FormWatch::printerTextWidth(const std::string& text, const std::string& font) const {
  return behind_.printerTextWidth(text, font);
}

void FormWatch::progressOpen(std::int64_t count, const std::string& message) {
  behind_.progressOpen(count, message);
}

std::string FormWatch::draft() const {
  std::string all;
  for (const forms::Form* form : open_) {
    const std::string fields = fieldsOf(*form);
    if (!fields.empty()) all += form->caption() + "\n\n" + fields + "\n";
  }
  return all;
}

std::filesystem::path saveDraft(const FormWatch& watch, const std::filesystem::path& directory,
                                const std::string& moment) {
  const std::string draft = watch.draft();
  if (draft.empty()) return {};
  for (int n = 1; n < 1000; ++n) {
    const std::filesystem::path file =
        directory / ("borrador-" + moment + "-" + std::to_string(n) + ".txt");
    if (std::filesystem::exists(file)) continue;
    std::ofstream out(file);
    out << draft << std::flush;
    return out ? file : std::filesystem::path();
  }
  return {};
}

}  // namespace fidaleon::app
