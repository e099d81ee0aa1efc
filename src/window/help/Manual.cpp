#include "window/help/Manual.h"

#include <algorithm>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <utility>

#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

/// What a reader sees of a line.
std::string plain(const std::string& line) {
  static const std::regex picture(R"(!\[[^\]]*\]\([^)]*\))"), link(R"(\[([^\]]*)\]\([^)]*\))"),
      rule(R"(^[-|: ]+$)"), marks(R"(\*\*|`|^> )"), slanted(R"(\*([^*]+)\*)"),
      edges(R"(^\s*\|\s*|\s*\|\s*$)"), bar(R"(\s*\|\s*)");
  std::string text = std::regex_replace(line, picture, "");
  text = std::regex_replace(text, link, "$1");
  text = std::regex_replace(text, rule, "");
  text = std::regex_replace(text, marks, "");
  text = std::regex_replace(text, slanted, "$1");
  text = std::regex_replace(text, edges, "");
  return text::trim(std::regex_replace(text, bar, ": "));
}

int levelOf(const std::string& line) {
  const std::size_t signs = line.find_first_not_of('#');
  return signs == std::string::npos || line[signs] != ' ' ? 0 : static_cast<int>(signs);
}

Chapter readChapter(const std::filesystem::path& file) {
  Chapter chapter{file.filename().string(), {}};
  std::ifstream in(file);
  std::string line;
  for (bool code = false; std::getline(in, line);) {
    if (line.starts_with("```")) code = !code;
    const int level = code ? 0 : levelOf(line);
    if (level > 0)
      chapter.sections.push_back({level, plain(line.substr(static_cast<std::size_t>(level))), {}});
    else if (const std::string text = plain(line); !text.empty() && !chapter.sections.empty())
      chapter.sections.back().lines.push_back(text);
  }
  return chapter;
}

std::vector<std::string> namedIn(const std::filesystem::path& contents) {
  std::ifstream in(contents);
  std::ostringstream all;
  all << in.rdbuf();
  const std::string text = all.str();
  static const std::regex link(R"(\]\(([^)#/]+\.md)\))");
  std::vector<std::string> files{contents.filename().string()};
  for (std::sregex_iterator at(text.begin(), text.end(), link), end; at != end; ++at)
    files.push_back((*at)[1]);
  return files;
}

std::string joined(const Section& section) {
  std::string all = section.title;
  for (const std::string& line : section.lines) all += "\n" + line;
  return text::searchKey(all);
}

std::vector<std::string> wordsOf(const std::string& query) {
  std::istringstream in(text::searchKey(query));
  std::vector<std::string> words;
  for (std::string word; in >> word;) words.push_back(word);
  return words;
}

bool hasAll(const std::string& key, const std::vector<std::string>& words) {
  return std::all_of(words.begin(), words.end(),
                     [&](const std::string& word) { return key.find(word) != std::string::npos; });
}

/// The line with most of the words.
std::string lineWith(const Section& section, const std::vector<std::string>& words) {
  std::pair<std::ptrdiff_t, std::string> best{-1, {}};
  for (const std::string& line : section.lines) {
    const std::string key = text::searchKey(line);
    const auto found = std::count_if(words.begin(), words.end(), [&](const std::string& word) {
      return key.find(word) != std::string::npos;
    });
    if (found > best.first) best = {found, line};
  }
  return best.second;
}

std::string lettersOf(const std::string& heading) {
  std::string letters;
  for (const char c : text::searchKey(heading))
    if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')) letters += c;
  return letters;
}

}  // namespace

bool sameHeading(const std::string& a, const std::string& b) {
  return lettersOf(a) == lettersOf(b);
}

Manual::Manual(std::filesystem::path directory) : directory_(std::move(directory)) {
  std::set<std::string> known;
  for (const std::string& file : namedIn(directory_ / CONTENTS)) {
    if (!known.insert(file).second) continue;
    Chapter chapter = readChapter(directory_ / file);
    if (!chapter.sections.empty()) chapters_.push_back(std::move(chapter));
  }
}

const Section* Manual::find(const Place& place) const {
  for (const Chapter& chapter : chapters_) {
    if (chapter.file != place.file) continue;
    if (place.heading.empty()) return &chapter.sections.front();
    for (const Section& section : chapter.sections)
      if (sameHeading(section.title, place.heading)) return &section;
  }
  return nullptr;
}

std::vector<Manual::Hit> Manual::search(const std::string& query) const {
  const std::vector<std::string> words = wordsOf(query);
  std::vector<Hit> inHeadings, inTexts;
  if (words.empty()) return {};
  for (const Chapter& chapter : chapters_) {
    if (chapter.file == CONTENTS) continue;
    for (const Section& section : chapter.sections) {
      if (!hasAll(joined(section), words)) continue;
      auto& hits = hasAll(text::searchKey(section.title), words) ? inHeadings : inTexts;
      hits.push_back({{chapter.file, section.title},
                      chapter.sections.front().title,
                      lineWith(section, words)});
    }
  }
  inHeadings.insert(inHeadings.end(), inTexts.begin(), inTexts.end());
  return inHeadings;
}

}  // namespace fidaleon::app
