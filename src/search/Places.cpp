#include "search/Places.h"

#include <algorithm>

#include "core/statements/Sentencia.h"
#include "search/Words.h"

namespace fidaleon::search {
namespace {

std::uint32_t unsignedOf(std::int64_t key) {
  return static_cast<std::uint32_t>(key);
}

}  // namespace

void Places::read(store::Connection& parish) {
  *this = Places();
  for (auto rows = parish.Execute("SELECT IDMunicipio, Nombre FROM Municipio"); !rows.EOF_();
       rows.MoveNext())
    add(By::Towns, Mark::Town, unsignedOf(rows.integer(0)), rows.text(1));
  for (auto rows = parish.Execute("SELECT IDInstitucion, Nombre FROM Institucion"); !rows.EOF_();
       rows.MoveNext())
    add(By::Parishes, Mark::Institution, unsignedOf(rows.integer(0)), rows.text(1));
  for (const Sacramento& s : SACRAMENTOS) {
    const auto in = static_cast<Register>(s.byte);
    for (auto rows =
             parish.Execute(sentencia(s, "SELECT {IDLibro}, Nombre, CodInstitucion FROM {Libros}"));
         !rows.EOF_(); rows.MoveNext()) {
      const std::uint32_t number = bookNumber(in, rows.integer(0));
      add(By::Books, Mark::Book, number, rows.text(1));
      institutions_[number] = rows.integer(2);
      addUnder(By::Parishes, institution(rows.integer(2)), markId(Mark::Book, number));
    }
  }
}

void Places::add(By by, Mark mark, std::uint32_t number, const std::string& name) {
  names_[markId(mark, number)] = name;
  addUnder(by, name, markId(mark, number));
}

void Places::addUnder(By by, const std::string& name, MarkId mark) {
  for (const std::string& word : wordsOf(name)) {
    WordId id = words_.find(word);
    if (id == 0) {
      words_.add(word);
      id = words_.size();
    }
    marks_[id].emplace_back(by, mark);
  }
}

std::vector<MarkId> Places::like(const std::string& word, Vocabulary::Typed typed, By by) const {
  std::vector<MarkId> found;
  for (const auto& [id, how] : words_.like(word, typed, Vocabulary::Letters::AsTyped)) {
    if (how > Likeness::Sound) continue;
    for (const auto& [of, mark] : marks_.at(id))
      if (of == by) found.push_back(mark);
  }
  std::sort(found.begin(), found.end());
  found.erase(std::unique(found.begin(), found.end()), found.end());
  return found;
}

const std::string& Places::name(Mark mark, std::int64_t number) const {
  static const std::string NOTHING;
  const auto found = names_.find(markId(mark, unsignedOf(number)));
  return found == names_.end() ? NOTHING : found->second;
}

std::int64_t Places::institutionOf(Register in, std::int64_t book) const {
  const auto found = institutions_.find(bookNumber(in, book));
  return found == institutions_.end() ? 0 : found->second;
}

}  // namespace fidaleon::search
