#include "sample/SampleEntries.h"

namespace fidaleon::app::sample {
namespace {

constexpr const char* ANNULLED = "Anulada por haberse inscrito dos veces.";

std::string stored(const text::Date& day) {
  return day.year == 0 ? std::string() : text::toStored(day);
}

}  // namespace

const Couple& Entries::coupleOf(int position) const {
  return people_.couples[static_cast<std::size_t>(position)];
}

std::int32_t Entries::town(int position) const {
  return at_.towns[static_cast<std::size_t>(position)];
}

cBautismo Entries::baptism(const Baptism& b, const Place& place) const {
  const Couple& c = coupleOf(b.couple);
  cBautismo r;
  r.CodInstitucionBautismo = static_cast<std::uint8_t>(place.book == 0 ? at_.institution : 0);
  r.CodLibroBautismo = place.book;
  r.FolioBautismo = std::to_string(place.folio);
  r.NumeroBautismo = place.number;
  r.AnuladaBautismo = b.annulled;
  r.FechaBautismo = stored(b.day);
  r.EdadPadrino = r.EdadMadrina = "0";
  r.PadrinoBautismo = b.godfather;
  r.MadrinaBautismo = b.godmother;
  r.MinistroBautismo = b.minister;
  r.MinistroCargo = "Párroco";
  r.ParroquiaBautismo = at_.parish;
  r.CodPoblacionBautismo = at_.town;
  r.DiocesisBautismo = at_.diocese;
  r.NotasMarginalesBautismo = b.marginalNotes;
  r.ObservacionesBautismo = b.remarks;
  putChild(r, b, c);
  putFather(r, c);
  putMother(r, c);
  putMarriage(r, c);
  return r;
}

void Entries::putChild(cBautismo& r, const Baptism& b, const Couple& c) const {
  r.NombreHijo = b.name;
  r.PrimerApellidoHijo = c.father.first;
  r.SegundoApellidoHijo = c.mother.first;
  r.SexoHijo = b.girl ? "Mujer" : "Hombre";
  r.FechaNacHijo = stored(b.birth);
  r.HoraNacHijo = b.hour;
  r.DireccionNacHijo = c.street;
  r.CodPoblacionNacHijo = at_.town;
}

void Entries::putFather(cBautismo& r, const Couple& c) const {
  r.NombrePadres = c.father.name;
  r.PrimerApellidoPadres = c.father.first;
  r.SegundoApellidoPadres = c.father.second;
  r.CodPoblacionPadres = town(c.father.town);
  r.AbueloPadres = c.fathersFather;
  r.AbuelaPadres = c.fathersMother;
  r.CodPoblacionAbueloPadres = r.CodPoblacionAbuelaPadres = town(c.fathersTown);
  r.PadreProfesion = c.trade;
}

void Entries::putMother(cBautismo& r, const Couple& c) const {
  r.NombreMadres = c.mother.name;
  r.PrimerApellidoMadres = c.mother.first;
  r.SegundoApellidoMadres = c.mother.second;
  r.CodPoblacionMadres = town(c.mother.town);
  r.AbueloMadres = c.mothersFather;
  r.AbuelaMadres = c.mothersMother;
  r.CodPoblacionAbueloMadres = r.CodPoblacionAbuelaMadres = town(c.mothersTown);
}

void Entries::putMarriage(cBautismo& r, const Couple& c) const {
  r.ParroquiaMatrimonio = c.weddingParish;
  r.FechaMatrMatrimonio = stored(c.wedding);
  r.CodPoblacionMatrMatrimonio = town(c.weddingTown);
  r.DireccionPadresMatrimonio = c.street;
  r.CodPoblacionPadresMatrimonio = at_.town;
  r.DiocesisMatrimonio = at_.diocese;
}

cConfirmacion Entries::confirmation(const Confirmation& c, const Place& place,
                                    const Place* baptised) const {
  cConfirmacion r;
  r.InstitucionSolicitud = place.book == 0 ? at_.institution : 0;
  r.CodLibro = place.book;
  r.Folio = place.folio;
  r.Numero = place.number;
  r.Anulada = c.annulled;
  r.Nombre = c.person.name;
  r.PrimerApellido = c.person.first;
  r.SegundoApellido = c.person.second;
  r.FechaNac = stored(c.birth);
  r.CodMunicipioNac = town(c.person.town);
  r.NombrePadre = c.father;
  r.NombreMadre = c.mother;
  r.Domicilio = c.street;
  r.CodMunicipioDomicilio = at_.town;
  r.FeligresDe = r.Parroquia = at_.parish;
  r.CodMunicipioParr = at_.town;
  r.DiocesisParr = at_.diocese;
  if (c.annulled) r.NotasMarginales = ANNULLED;
  r.FechaConfirmacion = stored(c.day);
  r.Padrino = c.sponsor;
  r.MinistroPrinc = c.minister;
  r.CargoMinistro = c.office;
  putBaptism(r, c, baptised);
  return r;
}

/// Of those baptised elsewhere the register knows parish and day.
void Entries::putBaptism(cConfirmacion& r, const Confirmation& c, const Place* baptised) const {
  r.FechaBaut = stored(c.baptised);
  r.ParroquiaBaut = c.baptismParish;
  r.CodMunicipioBaut = town(c.baptismTown);
  if (!baptised) return;
  r.DireccionBaut = "Plaza de la Iglesia, 1";
  r.LibroBaut = baptised->bookName;
  r.FolioBaut = baptised->folio;
  r.NumeroBaut = baptised->number;
}

cDefuncion Entries::death(const Burial& b, const Place& place) const {
  cDefuncion r;
  r.CodLibro = std::to_string(place.book);
  r.Folio = place.folio;
  r.Numero = place.number;
  r.Nombre = b.person.name;
  r.PrimerApellido = b.person.first;
  r.SegundoApellido = b.person.second;
  r.CodMunicipioNaturalDe = town(b.person.town);
  r.CodMunicipioActual = r.CodMunicipioDefn = r.CodMunicipioParr = at_.town;
  r.NombrePadre = b.father;
  r.NombreMadre = b.mother;
  r.Parroquia = at_.parish;
  r.DiocesisParr = at_.diocese;
  r.Parroco = "D. " + b.minister;
  r.Edad = std::to_string(b.age);
  r.FechaDefuncion = stored(b.death);
  r.HoraDefuncion = b.hour;
  r.FechaInhumacion = stored(b.funeral);
  r.Causa = b.cause;
  r.Cementerio = "Cementerio parroquial";
  r.Sacramentos = b.anointed ? "Penitencia, Unción de los enfermos y Viático" : "";
  if (b.anointed) r.Sacerdote = r.Parroco;
  r.Anulada = b.annulled;
  if (b.annulled) r.NotasMarginales = ANNULLED;
  putFamily(r, b);
  return r;
}

void Entries::putFamily(cDefuncion& r, const Burial& b) const {
  r.DomicilioActual = r.DomicilioDefn = "C/ Mayor, " + std::to_string(3 + b.age % 40);
  r.EstadoCivil = b.couple < 0 ? "soltero" : b.widowed ? "viudo" : "casado";
  if (b.person.woman) r.EstadoCivil.back() = 'a';
  r.NumeroHijos = "0";
  if (b.couple < 0) return;
  const Couple& c = coupleOf(b.couple);
  r.DomicilioActual = r.DomicilioDefn = c.street;
  r.Consorte = (b.person.woman ? c.father : c.mother).full();
  int children = 0;
  std::string names;
  for (const Baptism& child : people_.baptisms) {
    if (child.couple != b.couple || child.annulled) continue;
    names += (children++ == 0 ? "" : ", ") + child.name;
    r.NombreContacto = child.name;
    r.ApellidoContacto = c.father.first;
    r.Apellido2Contacto = c.mother.first;
    r.RelacionDifunto = child.girl ? "hija" : "hijo";
  }
  r.NumeroHijos = std::to_string(children);
  r.NombreHijos = names;
}

}  // namespace fidaleon::app::sample
