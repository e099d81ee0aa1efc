// Abbreviations of names as scribes write them, and names that people use for one another.

#include <algorithm>
#include <iterator>
#include <unordered_map>

#include "search/Words.h"

namespace fidaleon::search {
namespace {

/// A name, and the forms that stand for it.
struct Forms {
  const char* name;
  const char* forms;  // blanks between them
};

constexpr Forms ABBREVIATIONS[] = {
    {"maria", "ma mra"},
    {"francisco", "fco fran frco"},
    {"francisca", "fca frca"},
    {"jose", "jse jph jhp josef joseph josse"},
    {"josefa", "jfa josepha josfa"},
    {"antonio", "anto ant antno"},
    {"antonia", "anta antna"},
    {"juan", "jn jno"},
    {"juana", "jna"},
    {"manuel", "ml manl mnl"},
    {"manuela", "mla manla"},
    {"miguel", "migl mgl"},
    {"pedro", "po pdro"},
    {"domingo", "dgo domo domgo"},
    {"dominga", "dga"},
    {"santiago", "stgo sgo"},
    {"bartolome", "barme bartme bme"},
    {"alejandro", "alejdro alejro"},
    {"agustin", "agn agustn"},
    {"bernardo", "berdo bdo"},
    {"bernardino", "berno"},
    {"cristobal", "xpoval xptobal crist"},
    {"concepcion", "concepn concion conon"},
    {"encarnacion", "encarn encarnon"},
    {"dolores", "dols dlores"},
    {"gregorio", "grego"},
    {"guillermo", "guillo gmo"},
    {"ignacio", "igno ygn"},
    {"joaquin", "joaqn jqn"},
    {"joaquina", "joaqna"},
    {"mercedes", "mdes mces"},
    {"vicente", "vte victe"},
    {"vicenta", "vta victa"},
    {"teresa", "tsa ta"},
    {"tomas", "thoms tms"},
    {"rosario", "rsrio"},
    {"carmen", "cmen carmn"},
    {"magdalena", "magda magdna"},
    {"catalina", "catna cathna"},
    {"margarita", "margta marga"},
    {"isabel", "isl ysl"},
    {"fernandez", "fdez fz fernz frez frz ferndez fernandz"},
    {"gonzalez", "glez gonz gonzz gzlez gzalez gonzlez glz"},
    {"rodriguez", "rguez rdguez rodz rodriguz rodgz rdriguez roguez rgz"},
    {"hernandez", "hdez hrdez hernz herndez hndez hdz"},
    {"martinez", "mtez mtnez mrtnez mnez martz martnez mtz"},
    {"sanchez", "schez sz sanchz snchez snz"},
    {"garcia", "ga gcia grcia garc"},
    {"lopez", "lpez lz lopz"},
    {"perez", "pz prez"},
    {"gomez", "gmez gz gomz"},
    {"jimenez", "jmnez jimz jmz jimnez gmnez ximz"},
    {"alvarez", "alvz alvrez alvez"},
    {"dominguez", "dguez domguez domingz dmguez"},
    {"vazquez", "vzquez vquez vazqz"},
    {"ramirez", "rmrez ramz rmez"},
    {"gutierrez", "gtrrez gutrez gtez gutz"},
    {"ruiz", "rz"},
    {"santa", "sta"},
    {"santo", "sto"},
    {"san", "s"},
};

constexpr Forms FAMILIAR[] = {
    {"francisco", "paco pancho curro francesc francesco kiko quico fran"},
    {"francisca", "paca paquita curra francesca"},
    {"jose", "pepe pepito josep xose jusep xosep chema"},
    {"josefa", "pepa pepita fina josefina xosefa"},
    {"manuel", "manolo manu manel lolo"},
    {"manuela", "manola manoli"},
    {"dolores", "lola loli dolors"},
    {"concepcion", "concha conchi conchita chon concepcio"},
    {"rosario", "charo chari roser"},
    {"antonio", "toni antoni tono anton antonino"},
    {"antonia", "tonia tona"},
    {"juan", "joan xoan juanito xan"},
    {"juana", "joana xoana juanita"},
    {"jorge", "jordi xurxo"},
    {"pedro", "pere perico pedrito"},
    {"pablo", "pau paulo"},
    {"miguel", "miquel miguelito"},
    {"luis", "lluis lois luisito"},
    {"luisa", "lluisa luisita"},
    {"carlos", "carles"},
    {"jaime", "jaume xaime"},
    {"santiago", "yago iago"},
    {"maria", "mari marica maruja mariquita"},
    {"teresa", "tere maite"},
    {"isabel", "isa elisabet elisabeth ysabel sabela"},
    {"mercedes", "merche merce"},
    {"pilar", "pili piluca"},
    {"carmen", "carme mamen carmina carmela"},
    {"ignacio", "nacho inaki ignasi"},
    {"javier", "xavier xabier"},
    {"rafael", "rafa"},
    {"ramon", "moncho"},
    {"enrique", "quique enric"},
    {"eduardo", "edu eduard"},
    {"fernando", "nando ferran fernan"},
    {"guillermo", "guillem"},
    {"vicente", "vicent vicenc"},
    {"esteban", "esteve"},
    {"andres", "andreu andre"},
    {"bartolome", "bartomeu"},
    {"gabriel", "biel"},
    {"lorenzo", "llorenc"},
    {"mateo", "mateu"},
    {"felipe", "felip"},
    {"jeronimo", "jeroni geronimo"},
    {"joaquin", "joaquim chimo quim ximo"},
    {"agustin", "agusti"},
    {"domingo", "domenec mingo"},
    {"montserrat", "montse"},
    {"catalina", "caterina catarina"},
    {"margarita", "margalida"},
    {"ana", "anna anita"},
    {"consuelo", "chelo"},
    {"milagros", "mila"},
    {"soledad", "sole marisol"},
    {"gregorio", "goyo"},
    {"gregoria", "goya"},
    {"inocencio", "chencho"},
};

using Table = std::unordered_map<std::string_view, std::string_view>;

template <std::size_t N>
Table tableOf(const Forms (&lines)[N]) {
  Table table;
  for (const Forms& line : lines) {
    std::string_view rest = line.forms;
    while (!rest.empty()) {
      const std::size_t end = std::min(rest.find(' '), rest.size());
      table.emplace(rest.substr(0, end), line.name);
      rest.remove_prefix(std::min(end + 1, rest.size()));
    }
  }
  return table;
}

std::string_view meaning(const Table& table, std::string_view word) {
  const auto found = table.find(word);
  return found == table.end() ? word : found->second;
}

/// "delafuente": what stands behind the particle, where enough of it is left to be a name.
std::string_view withoutParticle(std::string_view word) {
  for (const std::string_view particle : {"delas", "delos", "dela", "del"})
    if (word.starts_with(particle))
      return word.size() >= particle.size() + (particle == "del" ? 5 : 4)
                 ? word.substr(particle.size())
                 : word;
  return word;
}

}  // namespace

std::string_view writtenOut(std::string_view word) {
  static const Table table = tableOf(ABBREVIATIONS);
  const std::string_view meant = meaning(table, word);
  return meant.data() == word.data() ? withoutParticle(word) : meant;
}

std::string_view usualName(std::string_view word) {
  static const Table table = tableOf(FAMILIAR);
  return meaning(table, writtenOut(word));
}

}  // namespace fidaleon::search
