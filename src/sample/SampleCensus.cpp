#include "sample/SampleCensus.h"

#include <array>
#include <numeric>

#include "parish/Insert.h"
#include "sample/SampleNames.h"
#include "sample/SampleTasks.h"
#include "support/Identidad.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

constexpr int CENSUS_PERSON = 2;
constexpr int COLLABORATOR = 3;
constexpr int MARRIED_WITHIN = 62;  // years: who married before lives no longer
constexpr int LEAVES_HOME_AT = 26;
constexpr int IDENTITY_FROM = 14;
constexpr int DEAD_AFTER = 58;  // years of marriage

struct Inhabitant {
  sample::Person who;
  text::Date birth;
  std::string father, mother;
  const sample::Couple* home = nullptr;
  const char* position = "";
  const sample::Baptism* baptism = nullptr;  // null for who was not baptised here
  bool married = false;
};

int lengthOf(int year, int month) {
  for (int day = 31;; --day)
    if (text::isValid({year, month, day})) return day;
}

/// A day that stands for a person: the same on every machine.
text::Date someDay(int year, std::size_t seed) {
  const int month = 1 + static_cast<int>(seed * 7 % 12);
  return {year, month, 1 + static_cast<int>(seed * 11) % lengthOf(year, month)};
}

class CensusWriter {
 public:
  CensusWriter(store::Connection& connection, const SampleGround& ground, const text::Date& today)
      : con_(connection), ground_(ground), today_(today) {}

  void run() {
    for (const sample::Couple& c : ground_.people.couples)
      if (c.wedding.year >= today_.year - MARRIED_WITHIN) writeFamily(c);
    writeOffices();
    writeActivities();
  }

 private:
  void writeFamily(const sample::Couple& c) {
    const int year = c.wedding.year;
    person({c.father, someDay(year - 27, count_), c.fathersFather, c.fathersMother, &c, "Padre",
            nullptr, true});
    person({c.mother, someDay(year - 25, count_ + 3), c.mothersFather, c.mothersMother, &c, "Madre",
            nullptr, true});
    for (const sample::Baptism& b : ground_.people.baptisms) {
      if (&ground_.people.couples[static_cast<std::size_t>(b.couple)] != &c || b.annulled) continue;
      if (text::yearsBetween(b.birth, today_) > LEAVES_HOME_AT) continue;
      sample::Person child{b.name, c.father.first, c.mother.first, c.father.town, b.girl};
      person({child, b.birth, c.father.full(), c.mother.full(), &c, b.girl ? "Hija" : "Hijo", &b,
              false});
    }
  }

  void person(const Inhabitant& p) {
    ++count_;
    const int age = text::yearsBetween(p.birth, today_);
    const std::int32_t id = writeCard(p, age);
    writeSacraments(p, id, age);
    type(id, CENSUS_PERSON);
    if (age >= 17 && !dead(p) && count_ % 4 != 0) helpers_.push_back(id);
    if (count_ % 9 == 0) note(id, age);
  }

  bool dead(const Inhabitant& p) const {
    return p.married && p.position[0] == 'P' && p.home->wedding.year < today_.year - DEAD_AFTER;
  }

  std::int32_t writeCard(const Inhabitant& p, int age) {
    Insert row("Padron");
    row.text("Nombre", p.who.name).text("PrimerApellido", p.who.first);
    row.text("SegundoApellido", p.who.second).text("DNI", identity(age));
    row.text("Direccion", p.home->street).number("CodMunicipio", ground_.town);
    row.text("CPostal", ground_.postcode).text("Telefono", "9100" + digits(1000, 5));
    row.text("Telefono2", age < 16 ? "" : "6000" + digits(2000, 5));
    row.text("CorreoElectronico",
             age < 16 || count_ % 3 == 0 ? "" : "vecino" + std::to_string(count_) + "@example.org");
    row.text("EstadoCivil", civilStatus(p)).text("Sexo", p.who.woman ? "Mujer" : "Hombre");
    row.text("[Profesion/Colegio]", occupation(p, age)).text("PosicionFamiliar", p.position);
    row.text("Comentarios", "").text("Observaciones", "");
    row.number("CodInstitucionEmpadronado", ground_.institution);
    row.text("Nif_Responsable", "");
    const std::string born = text::toShort(p.birth);
    row.text("Cumpleaños", text::left(born, 5)).text("AñoNacimiento", text::right(born, 4));
    return row.into(con_, "IDPadron");
  }

  std::string digits(int from, std::size_t length) const {
    const std::string number = std::to_string(from + static_cast<int>(count_));
    return std::string(length - number.size(), '0') + number;
  }

  std::string identity(int age) const {
    if (age < IDENTITY_FROM) return {};
    const std::string number = "000" + digits(10000 + static_cast<int>(count_) * 37, 5);
    return number + "-" + support::letraNIF(number);
  }

  static std::string civilStatus(const Inhabitant& p) {
    if (!p.married) return p.who.woman ? "Soltera" : "Soltero";
    return p.who.woman ? "Casada" : "Casado";
  }

  std::string occupation(const Inhabitant& p, int age) const {
    if (p.married && !p.who.woman) return p.home->trade;
    if (p.married) return std::string(sample::TRADES[count_ % 4 + 13]);
    return age < 17 ? "colegio público" : "estudiante";
  }

  Insert satellite(const char* table, std::int32_t id) const {
    Insert row(table);
    row.number("CodPadron", id);
    return row;
  }

  void writeSacraments(const Inhabitant& p, std::int32_t id, int age) {
    const std::int32_t own = ground_.towns[static_cast<std::size_t>(p.who.town)];
    satellite("Padron_Nacimiento", id)
        .text("FechaNacimiento", text::toStored(p.birth))
        .number("CodMunicipioNac", own)
        .text("NombrePadre", p.father)
        .text("NombreMadre", p.mother)
        .into(con_);
    satellite("Padron_Bautismo", id)
        .text("FechaBautizo", p.baptism ? text::toStored(p.baptism->day) : "")
        .number("CodMunicipioParrBaut", p.baptism ? ground_.town : 0)
        .text("ParroquiaBaut", p.baptism ? ground_.parish : "")
        .text("DireccionParrBaut", "")
        .into(con_);
    satellite("Padron_Comunion", id)
        .text("AñoComunion", age >= 10 ? std::to_string(p.birth.year + 9) : "")
        .text("ParroquiaCom", age >= 10 && p.baptism ? ground_.parish : "")
        .into(con_);
    const bool confirmed = age >= 16 && count_ % 3 != 0;
    satellite("Padron_Confirmacion", id)
        .text("FechaConfirmacion", confirmed ? std::to_string(p.birth.year + 15) + "0517" : "")
        .number("CodMunicipioParrConf", confirmed ? own : 0)
        .text("ParroquiaConf", confirmed && p.baptism ? ground_.parish : "")
        .text("DireccionParrConf", "")
        .into(con_);
    satellite("Padron_Matrimonio", id)
        .text("FechaMatrimonio", p.married ? text::toStored(p.home->wedding) : "")
        .number("CodMunicipioParrMatr",
                p.married ? ground_.towns[static_cast<std::size_t>(p.home->weddingTown)] : 0)
        .text("ParroquiaMatr", p.married ? p.home->weddingParish : "")
        .text("DireccionParrMatr", "")
        .into(con_);
    writeDeath(p, id);
  }

  void writeDeath(const Inhabitant& p, std::int32_t id) {
    const bool gone = dead(p);
    satellite("Padron_Defuncion", id)
        .text("FechaDefuncion",
              gone ? text::toStored(someDay(today_.year - 1 - static_cast<int>(count_ % 5), count_))
                   : "")
        .text("Nicho", gone ? "Patio 2, fila " + std::to_string(1 + count_ % 6) : "")
        .text("ImporteEur", gone ? "450,00" : "0,00")
        .text("Importe", gone ? "74.874" : "0")
        .number("Pagado", gone && count_ % 2 == 0 ? -1 : 0)
        .into(con_);
  }

  void type(std::int32_t id, int kind) {
    Insert("Padron_TipoPersona").number("CodPadron", id).number("CodTipoPersona", kind).into(con_);
  }

  void note(std::int32_t id, int age) {
    Insert("Padron_NotasPersonales")
        .number("CodPadron", id)
        .text("Nombre", age > 70 ? "Visita" : "Disponibilidad")
        .text("Descripcion", age > 70 ? "Se le lleva la comunión los primeros viernes."
                                      : "Se ofrece para ayudar los sábados por la mañana.")
        .into(con_);
  }

  void writeOffices() {
    static constexpr std::array<std::array<const char*, 2>, 7> OFFICES{{
        {"Responsable", "Coordina el grupo y convoca sus reuniones."},
        {"Catequista", ""},
        {"Cantor", ""},
        {"Organista", "Acompaña las misas y los ensayos."},
        {"Voluntario", ""},
        {"Lector", ""},
        {"Tesorero", "Lleva las cuentas del grupo."},
    }};
    for (const auto& [name, description] : OFFICES)
      offices_.push_back(Insert("Cargo")
                             .text("Nombre", name)
                             .text("Descripcion", description)
                             .into(con_, "IDCargo"));
  }

  enum Office { Head, Catechist, Singer, Organist, Volunteer, Reader, Treasurer };

  struct Group {
    const char* name;
    const char* day;
    const char* hour;
    const char* room;
    Office office;
    int members;
  };

  void activity(const char* name, const char* description, std::initializer_list<Group> groups) {
    const std::int32_t id = Insert("Actividad")
                                .text("Nombre", name)
                                .text("Descripcion", description)
                                .number("CodInstitucion", ground_.institution)
                                .into(con_, "IDActividad");
    for (const Group& g : groups) writeGroup(id, g);
  }

  void writeGroup(std::int32_t activity, const Group& g) {
    const std::string course = std::to_string(today_.month < 9 ? today_.year - 1 : today_.year) +
                               "/" +
                               std::to_string(today_.month < 9 ? today_.year : today_.year + 1);
    const std::int32_t id = Insert("Grupo")
                                .number("CodActividad", activity)
                                .text("Nombre", g.name)
                                .text("Año", course)
                                .text("Dia", g.day)
                                .text("Hora", g.hour)
                                .text("Sala", g.room)
                                .text("Comentarios", "")
                                .into(con_, "IDGrupo");
    for (int i = 0; i < g.members; ++i) {
      const std::int32_t helper = helpers_[next_++ * stride() % helpers_.size()];
      member(helper, id, i == 0 ? Head : g.office);
    }
  }

  /// Goes round all helpers before it comes to one again.
  std::size_t stride() const {
    std::size_t step = 5;
    while (std::gcd(step, helpers_.size()) != 1) ++step;
    return step;
  }

  void member(std::int32_t person, std::int32_t group, Office office) {
    Insert("Padron_Actividad")
        .number("CodPadron", person)
        .number("CodGrupo", group)
        .number("CodCargo", offices_[office])
        .into(con_);
    if (con_.Execute("SELECT * FROM Padron_TipoPersona WHERE CodPadron=" + std::to_string(person) +
                     " AND CodTipoPersona=3")
            .EOF_())
      type(person, COLLABORATOR);
  }

  void writeActivities() {
    activity("Catequesis", "De la primera comunión a la confirmación.",
             {{"Comunión, primer año", "Sábado", "17:00", "Sala 1", Catechist, 4},
              {"Comunión, segundo año", "Sábado", "17:00", "Sala 2", Catechist, 4},
              {"Confirmación", "Viernes", "19:00", "Salón parroquial", Catechist, 3}});
    activity("Coro parroquial", "Canta en la misa mayor y en las fiestas.",
             {{"Coro de adultos", "Viernes", "20:00", "Iglesia", Singer, 9},
              {"Órgano", "Domingo", "11:30", "Iglesia", Organist, 2}});
    activity("Cáritas", "Acogida y ayuda a las familias del pueblo.",
             {{"Acogida", "Jueves", "19:00", "Despacho", Volunteer, 5},
              {"Ropero", "Martes", "18:00", "Bajos de la casa rectoral", Volunteer, 4},
              {"Cuentas", "Primer lunes de mes", "19:00", "Despacho", Treasurer, 2}});
    activity("Liturgia", "", {{"Lectores", "Domingo", "12:00", "Sacristía", Reader, 6}});
  }

  store::Connection& con_;
  const SampleGround& ground_;
  text::Date today_;
  std::size_t count_ = 0;
  std::vector<std::int32_t> helpers_;  // who may collaborate
  std::size_t next_ = 0;
  std::vector<std::int32_t> offices_;
};

}  // namespace

void fillSampleCensus(store::Connection& connection, const SampleGround& ground,
                      const text::Date& today) {
  CensusWriter(connection, ground, today).run();
  fillSampleTasks(connection, today.year);
}

}  // namespace fidaleon::app
