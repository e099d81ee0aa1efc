#pragma once
// The people of fichas.txt in a parish, with an index of them.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "registers/books/LibroNuevo.h"
#include "search/Indexer.h"
#include "search/Searcher.h"
#include "support/TestWorld.h"

namespace fidaleon::search {

using namespace fidaleon::tests;

/// The lines of a file that say something.
inline std::vector<std::string> linesOf(const char* name) {
  std::ifstream file(std::string(SEARCH_DATA) + "/" + name);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);)
    if (!line.empty() && line.front() != '#') lines.push_back(line);
  return lines;
}

inline std::vector<std::string> parted(const std::string& text) {
  std::vector<std::string> parts;
  for (std::size_t i = 0, end = 0; i <= text.size(); i = end + 1) {
    end = std::min(text.find('|', i), text.size());
    parts.push_back(text.substr(i, end - i));
  }
  return parts;
}

class SearchWorld : public TestWorld {
 public:
  SearchWorld() {
    institucion("San Pedro");
    for (const std::string& line : linesOf("fichas.txt"))
      add(line.substr(0, line.find(' ')), row(line.substr(line.find(' ') + 1)));
  }

  std::filesystem::path file() const { return IndexFile::fileIn(directory.path()); }

  void add(const std::string& code, const Row& given) {
    known_ = &given;
    static const std::string LETTERS = "BCMDP";
    const auto letter = LETTERS.find(code.front());
    const auto in = static_cast<Register>(letter == std::string::npos ? 0 : letter);
    using Add = void (SearchWorld::*)();
    constexpr Add ADD[] = {&SearchWorld::baptism, &SearchWorld::confirmation,
                           &SearchWorld::marriage, &SearchWorld::death, &SearchWorld::census};
    (this->*ADD[static_cast<std::size_t>(in)])();
    const Source& source = sourceOf(in);
    codes_[{in, static_cast<std::int32_t>(highestKey(con(), source))}] = code;
  }
  /// The codes of what is found, the nearest first.
  std::vector<std::string> codes(const Found& found) const {
    std::vector<std::string> all;
    for (const Hit& hit : found.hits) all.push_back(codes_.at({hit.in, hit.key}));
    return all;
  }
  std::int32_t key(const std::string& code) const {
    for (const auto& [which, known] : codes_)
      if (known == code) return which.second;
    return 0;
  }

 private:
  std::string of(const char* name) const {
    const auto at = known_->find(name);
    return at == known_->end() ? "---" : at->second;
  }
  /// "Nombre=...; PrimerApellido=...; SegundoApellido=...".
  std::string names(const char* name) const {
    std::vector<std::string> parts = parted(of(name));
    parts.resize(3, "---");
    return "Nombre=" + parts[0] + "; PrimerApellido=" + parts[1] + "; SegundoApellido=" + parts[2];
  }
  std::string town() {
    const std::string name = of("pueblo");
    if (name == "---") return "0";
    if (!towns_.contains(name)) towns_[name] = municipio(name, "Madrid");
    return std::to_string(towns_[name]);
  }
  /// Where the entry stands: in its book, or outside of all.
  std::string place(const Sacramento& s) {
    const std::string name = of("libro");
    std::int32_t& book = books_[{s.byte, name}];
    if (book == 0 && name != "---") {
      insertarLibro(con(), s, {1, 3, 4, name, "20000101", false});
      book = ultimoLibro(con(), s);
    }
    const bool request = name == "---";
    return "; CodLibro=" + std::to_string(book) +
           "; InstitucionSolicitud=" + (request ? "1" : "0") +
           "; Folio=" + (request ? "0" : of("folio")) + "; Numero=" + of("num") +
           "; Anulada=" + (of("anulada") == "TRUE" ? "TRUE" : "FALSE");
  }
  std::string last(const char* key, const char* table) {
    return value(std::string("SELECT MAX(") + key + ") AS M FROM " + table);
  }
  void baptism() {
    insert(con(), "Bautismo_Padres", names("padre"));
    insert(con(), "Bautismo_Madres", names("madre"));
    insert(con(), "Bautismo_Matrimonio", "FechaMatr=" + of("boda"));
    insert(con(), "Bautismo",
           "CodPadres=" + last("IDPadres", "Bautismo_Padres") +
               "; CodMadres=" + last("IDMadres", "Bautismo_Madres") + "; CodMatrimonio=" +
               last("IDMatrimonio", "Bautismo_Matrimonio") + "; Padrino=" + of("padrino") +
               "; Madrina=" + of("madrina") + "; FechaBautismo=" + of("dia") +
               "; Parroquia=San Pedro; CodMunicipio=" + town() + place(BAUTISMO));
    insert(con(), "Bautismo_Hijo",
           "CodBautismo=" + last("IDBautismo", "Bautismo") + "; " + names("de") +
               "; FechaNac=" + of("nac"));
  }
  void confirmation() {
    insert(con(), "Confirmacion",
           names("de") + "; NombrePadre=" + of("padre") + "; NombreMadre=" + of("madre") +
               "; FechaNac=" + of("nac") + place(CONFIRMACION));
    const std::string key = last("IDConfirmacion", "Confirmacion");
    insert(con(), "Confirmacion_Datos",
           "CodConfirmacion=" + key + "; FechaConfirmacion=" + of("dia") +
               "; Padrino=" + of("padrino"));
    insert(con(), "Confirmacion_Bautismo", "CodConfirmacion=" + key + "; FechaBaut=" + of("baut"));
  }
  void marriage() {
    for (const char* spouse : {"Novio", "Novia"}) {
      const std::string table = std::string("Matrimonio_") + spouse + "s";
      const bool bride = spouse == std::string("Novia");
      insert(con(), table, names(bride ? "novia" : "de"));
      insert(con(), table + "_RegCivil",
             std::string("Cod") + spouse +
                 "s=" + last((std::string("ID") + spouse + "s").c_str(), table.c_str()) +
                 "; NombrePadre=" + of(bride ? "padreNovia" : "padre") +
                 "; NombreMadre=" + of(bride ? "madreNovia" : "madre"));
    }
    insert(con(), "Matrimonio",
           "CodNovios=" + last("IDNovios", "Matrimonio_Novios") +
               "; CodNovias=" + last("IDNovias", "Matrimonio_Novias") + place(MATRIMONIO));
    insert(con(), "Matrimonio_Compromiso",
           "CodMatrimonio=" + last("IDMatrimonio", "Matrimonio") + "; FechaMatrimonio=" +
               of("dia") + "; Padrino=" + of("padrino") + "; Madrina=" + of("madrina"));
  }
  void death() {
    insert(con(), "Defuncion",
           names("de") + "; NombrePadre=" + of("padre") + "; NombreMadre=" + of("madre") +
               "; Consorte=" + of("consorte") + "; CodMunicipioParr=" + town() + place(DEFUNCION));
    insert(con(), "Defuncion_Datos",
           "CodDifunto=" + last("IDDifunto", "Defuncion") + "; FechaDefuncion=" + of("dia"));
  }
  void census() {
    insert(con(), "Padron",
           names("de") + "; DNI=" + of("dni") +
               "; CodInstitucionEmpadronado=1; CodMunicipio=" + town());
    const std::string key = last("IDPadron", "Padron");
    insert(con(), "Padron_Nacimiento",
           "CodPadron=" + key + "; FechaNacimiento=" + of("nac") + "; NombrePadre=" + of("padre") +
               "; NombreMadre=" + of("madre"));
    insert(con(), "Padron_TipoPersona",
           "CodPadron=" + key + "; CodTipoPersona=" + (of("colaborador") == "TRUE" ? "3" : "2"));
  }

  const Row* known_ = nullptr;
  std::map<std::string, std::int32_t> towns_;
  std::map<std::pair<int, std::string>, std::int32_t> books_;
  std::map<std::pair<Register, std::int32_t>, std::string> codes_;
};

}  // namespace fidaleon::search
