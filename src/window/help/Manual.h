#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace fidaleon::app {

/// A heading of the manual with what stands below it, up to the next one.
struct Section {
  int level = 1;
  std::string title;
  std::vector<std::string> lines;  // without the marks of Markdown
};

/// A file of the manual. Its first section bears its title.
struct Chapter {
  std::string file;  // its name, "02-libros.md"
  std::vector<Section> sections;
};

/// Where something stands in the manual; an empty heading is the beginning of the chapter.
struct Place {
  std::string file;
  std::string heading;

  bool operator==(const Place&) const = default;
};

/// The manual as it is read, searched and found one's way about in: Markdown files in one folder.
class Manual {
 public:
  static constexpr const char* CONTENTS = "LEEME.md";
  static constexpr const char* FIRST_STEPS = "00-primeros-pasos.md";

  /// The chapters stand in the order in which the list of contents names them, after that list
  /// itself. A folder that cannot be read is a manual without chapters.
  explicit Manual(std::filesystem::path directory);

  const std::filesystem::path& directory() const { return directory_; }
  const std::vector<Chapter>& chapters() const { return chapters_; }
  /// Null when there is none. A heading is found without regard to case, accents and punctuation,
  /// so that an anchor made of it finds it as well.
  const Section* find(const Place& place) const;

  struct Hit {
    Place place;
    std::string chapter;  // its title
    std::string line;     // in which the first of the words stands
  };
  /// The sections in which all the words occur, in any order, without regard to case and accents;
  /// those first that have them all in their heading.
  std::vector<Hit> search(const std::string& words) const;

 private:
  std::filesystem::path directory_;
  std::vector<Chapter> chapters_;
};

/// Two headings, or a heading and an anchor, are the same.
bool sameHeading(const std::string& a, const std::string& b);

}  // namespace fidaleon::app
