#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct UConverter;

namespace fidaleon::dbase {

/// How the bytes of a text are to be read.
class CodePage {
 public:
  /// As people and .cpg files write it: "850", "CP1252", "ANSI 1252", "ISO-8859-1", "UTF-8",
  /// "LDID/87". Empty when nobody knows it.
  static std::optional<CodePage> named(std::string_view name);
  /// What the language byte of a header stands for. Empty when it says nothing.
  static std::optional<CodePage> ofLanguage(std::uint8_t language);

  /// "850", "1252", "UTF-8".
  const std::string& name() const { return name_; }
  /// Appends the text in UTF-8. False when some byte stands for no character: it is a U+FFFD then,
  /// or a blank where it was a control character.
  bool append(std::string_view bytes, std::string& to) const;

 private:
  struct Close {
    void operator()(UConverter* converter) const;
  };
  using Converter = std::unique_ptr<UConverter, Close>;
  struct Letter {
    char utf8[3] = {};
    std::uint8_t size = 0;
    bool known = true;
  };

  CodePage(std::string name, Converter converter);
  void fillLetters();
  bool appendLetters(std::string_view bytes, std::string& to) const;
  bool appendConverted(std::string_view bytes, std::string& to) const;

  std::string name_;
  Converter converter_;
  bool singleByte_ = false;
  std::array<Letter, 256> letters_{};
};

}  // namespace fidaleon::dbase
