// What the books and the dossiers say of a marriage.

#include "sample/SampleEntries.h"
#include "sample/SampleNames.h"
#include "support/Identidad.h"

namespace fidaleon::app::sample {
namespace {

using M = cMatrimonio;

std::string stored(const text::Date& day) {
  return day.year == 0 ? std::string() : text::toStored(day);
}

/// The same of the same person.
std::string identity(const Spouse& s) {
  const int digits = s.birth.year * 1300 + s.birth.month * 100 + s.birth.day;
  const std::string number = "0" + std::to_string(digits);
  return number + "-" + support::letraNIF(number);
}

std::string townName(int position) {
  return std::string(TOWNS[static_cast<std::size_t>(position)].name);
}

std::string civilStatus(const Spouse& s) {
  return std::string(s.widowed ? "viud" : "solter") + (s.person.woman ? "a" : "o");
}

// The member of the groom and that of the bride.
#define SPOUSE(member) \
  { &M::Novio##member, &M::Novia##member }
#define SPOUSE_BEHIND(member) \
  { &M::member##Novio, &M::member##Novia }

struct Text {
  std::array<std::string M::*, 2> member;
  std::string what;
};

std::vector<Text> known(const Spouse& s) {
  return {{SPOUSE(Nombre), s.person.name},
          {SPOUSE(PrimerApellido), s.person.first},
          {SPOUSE(SegundoApellido), s.person.second},
          {SPOUSE(Religion), "católica"},
          {SPOUSE(FechaNac), stored(s.birth)},
          {SPOUSE(FechaConfirmacion), stored(s.confirmed)},
          {SPOUSE(Profesion), s.trade},
          {SPOUSE(Nacionalidad), "española"},
          {SPOUSE(EstadoCivil), civilStatus(s)},
          {SPOUSE(NombrePadre), s.father},
          {SPOUSE(NombreMadre), s.mother},
          {SPOUSE(FechaBaut), stored(s.baptised)},
          {SPOUSE(ParroquiaBaut), s.baptismParish},
          {SPOUSE(DomicilioActual), s.street}};
}

/// What is asked for since dossiers are kept in full.
std::vector<Text> detailed(const Spouse& s) {
  const std::string town = townName(s.person.town);
  return {{SPOUSE(DNI), identity(s)},
          {SPOUSE(MunicipioInscrito), town},
          {SPOUSE(Tomo), std::to_string(40 + s.birth.year % 60)},
          {SPOUSE(Pagina), std::to_string(10 + s.birth.day * 7)},
          {SPOUSE(NombreCivil), s.person.full()},
          {SPOUSE(SujetoDerecho), "común"},
          {SPOUSE_BEHIND(Telefono), "6000" + std::to_string(10000 + s.birth.day * 311)},
          {SPOUSE_BEHIND(ParroquiaExhorto), s.homeParish},
          {SPOUSE_BEHIND(PoblacionExhorto), s.homeParish.empty() ? "" : townName(s.town)}};
}

std::string age(const Spouse& s, const text::Date& day) {
  return day.year == 0 ? "0" : std::to_string(text::yearsBetween(s.birth, day));
}

}  // namespace

cMatrimonio Entries::marriage(const Marriage& m, const Place& place,
                              std::array<const Place*, 2> baptised) const {
  M r;
  r.InstitucionSolicitud = place.book == 0 ? at_.institution : 0;
  r.IDLibro = place.book;
  r.Folio = place.folio;
  r.Numero = place.number;
  r.Anulada = m.annulled;
  r.Parroquia = at_.parish;
  r.IDMunicipio = at_.town;
  r.Diocesis = at_.diocese;
  r.NotasMarginales = m.marginalNotes;
  r.Observaciones = m.remarks;
  for (const std::size_t which : {0U, 1U}) putSpouse(r, which, m, baptised[which]);
  putCelebration(r, m);
  putWitnesses(r, m);
  return r;
}

void Entries::putSpouse(cMatrimonio& r, std::size_t which, const Marriage& m,
                        const Place* baptised) const {
  const Spouse& s = which == 0 ? m.groom : m.bride;
  const auto put = [&](const auto& members, const auto& what) { r.*members[which] = what; };
  for (const Text& t : known(s)) put(t.member, t.what);
  if (m.detailed)
    for (const Text& t : detailed(s)) put(t.member, t.what);
  constexpr std::array AGE SPOUSE(Edad);
  constexpr std::array BAPTISM_DIOCESE SPOUSE(DiocesisBaut);
  constexpr std::array BIRTH_DIOCESE SPOUSE(DiocesisNac);
  constexpr std::array BANNS_DIOCESE SPOUSE_BEHIND(DiocesisExhorto);
  constexpr std::array BIRTH_TOWN SPOUSE(IDMunicipioNac);
  constexpr std::array BAPTISM_TOWN SPOUSE(IDMunicipioBaut);
  constexpr std::array HOME_TOWN SPOUSE(IDMunicipioActual);
  constexpr std::array CONFIRMATION_TOWN SPOUSE(CodMunicipioConfirmacion);
  put(AGE, age(s, m.day));
  put(BIRTH_TOWN, town(s.person.town));
  put(BAPTISM_TOWN, town(s.baptismTown));
  if (!s.street.empty()) put(HOME_TOWN, town(s.town));
  if (!s.homeParish.empty()) put(BANNS_DIOCESE, at_.diocese);
  if (s.confirmed.year != 0) put(CONFIRMATION_TOWN, town(s.baptismTown));
  if (!baptised) return;
  constexpr std::array BOOK SPOUSE(LibroBaut);
  constexpr std::array FOLIO SPOUSE(FolioBaut);
  constexpr std::array NUMBER SPOUSE(NumeroBaut);
  put(BAPTISM_DIOCESE, at_.diocese);
  put(BIRTH_DIOCESE, at_.diocese);
  put(BOOK, baptised->bookName);
  put(FOLIO, baptised->folio);
  put(NUMBER, baptised->number);
}

void Entries::putCelebration(cMatrimonio& r, const Marriage& m) const {
  r.FechaMatrimonio = stored(m.day);
  r.HoraMatrimonio = m.hour;
  r.Padrino = m.godfather;
  r.Madrina = m.godmother;
  r.Testigos = m.witnesses;
  r.Celebrante = m.celebrant.empty() ? "" : "D. " + m.celebrant;
  r.ExpedInst = "esta parroquia";
  r.NihilObstat = m.nihilObstat;
  r.DomicilioMatrimonio = m.street;
  if (!m.street.empty()) r.CodMunicipioDomicMatr = at_.town;
  if (m.detailed) r.CPCompromiso = at_.postcode;
}

/// Of the dossier; one edition names them on its certificate too.
void Entries::putWitnesses(cMatrimonio& r, const Marriage& m) const {
  if (m.first.name.empty()) return;
  r.NombreTestigo1 = m.first.name;
  r.PrimerApellidoTestigo1 = m.first.first;
  r.SegundoApellidoTestigo1 = m.first.second;
  r.DomicilioTestigo1 = "C/ Real, 14";
  r.NombreTestigo2 = m.second.name;
  r.PrimerApellidoTestigo2 = m.second.first;
  r.SegundoApellidoTestigo2 = m.second.second;
  r.DomicilioTestigo2 = "C/ del Arco, 3";
  r.CodMunicipioTestigo1 = r.CodMunicipioTestigo2 = at_.town;
  r.TestigosParroquia = at_.parish;
  r.Testigo1 = m.first.full();
  r.Testigo2 = m.second.full();
  r.Testigo1_Natural_De = r.Testigo1_Poblacion = townName(m.first.town);
  r.Testigo2_Natural_De = r.Testigo2_Poblacion = townName(m.second.town);
}

}  // namespace fidaleon::app::sample
