#include "search/Entry.h"

#include "text/Dates.h"
#include "text/Numbers.h"

namespace fidaleon::search {

const std::string& Entry::text(Field field) const {
  static const std::string NOTHING;
  for (const auto& [what, text] : texts)
    if (what == field && text != "---") return text;
  return NOTHING;
}

std::int64_t Entry::number(Field field) const {
  return static_cast<std::int64_t>(text::Val(text(field)));
}

std::int32_t Entry::day(Field field) const {
  return text::parseStored(text(field)) ? static_cast<std::int32_t>(number(field)) : 0;
}

std::string Entry::name(Who who) const {
  std::string whole;
  for (const Part part : {Part::Name, Part::First, Part::Second, Part::Whole}) {
    const std::string& text = this->text(of(who, part));
    if (!text.empty()) whole += (whole.empty() ? "" : " ") + text;
  }
  return whole;
}

}  // namespace fidaleon::search
