#include "documents/TextRules.h"

#include "text/Utf8.h"

namespace fidaleon::documents {

namespace {

constexpr std::size_t NOTES_LENGTH = 600;

}  // namespace

std::string ValorImprimible(const store::Value& value) {
  return ValorImprimible(value.text());
}

std::string ValorImprimible(const std::string& value) {
  return text::trim(value).empty() ? BLANK : value;
}

std::string paddedNotes(const std::string& notes) {
  std::string padded = notes;
  for (std::size_t n = text::length(notes); n < NOTES_LENGTH; n += 2) padded += " .";
  return padded;
}

std::string initial(const std::string& surname) {
  return text::upper(text::left(text::trim(surname), 1));
}

bool GenderWords::isBoy(std::string_view sexo) const {
  return sexo == "Hombre" || (blankIsBoy && sexo == BLANK);
}

const char* formOfAddress(std::string_view sexo) {
  if (sexo == "Hombre") return "D.";
  if (sexo == "Mujer") return "Dª.";
  return "D./Dª";
}

}  // namespace fidaleon::documents
