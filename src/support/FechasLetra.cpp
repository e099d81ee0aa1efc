#include "support/FechasLetra.h"

#include <array>

namespace fidaleon::support {

namespace {

constexpr std::array<const char*, 31> NUMEROS{
    "uno",          "dos",        "tres",        "cuatro",     "cinco",       "seis",
    "siete",        "ocho",       "nueve",       "diez",       "once",        "doce",
    "trece",        "catorce",    "quince",      "dieciséis",  "diecisiete",  "dieciocho",
    "diecinueve",   "veinte",     "veintiuno",   "veintidós",  "veintitrés",  "veinticuatro",
    "veinticinco",  "veintiséis", "veintisiete", "veintiocho", "veintinueve", "treinta",
    "treinta y uno"};
constexpr std::array<const char*, 7> DECENAS{"treinta", "cuarenta", "cincuenta", "sesenta",
                                             "setenta", "ochenta",  "noventa"};
constexpr std::array<const char*, 9> CENTENAS{"ciento",        "doscientos",  "trescientos",
                                              "cuatrocientos", "quinientos",  "seiscientos",
                                              "setecientos",   "ochocientos", "novecientos"};
constexpr std::array<const char*, 12> MESES{"enero",      "febrero", "marzo",     "abril",
                                            "mayo",       "junio",   "julio",     "agosto",
                                            "septiembre", "octubre", "noviembre", "diciembre"};

constexpr std::array<const char*, 31> DIES{
    "u",           "dos",        "tres",       "quatre",      "cinc",        "sis",
    "set",         "vuit",       "nou",        "deu",         "onze",        "dotze",
    "tretze",      "catorze",    "quinze",     "setze",       "disset",      "divuit",
    "dinou",       "vint",       "vint-i-u",   "vint-i-dos",  "vint-i-tres", "vint-i-quatre",
    "vint-i-cinc", "vint-i-sis", "vint-i-set", "vint-i-vuit", "vint-i-nou",  "trenta",
    "trenta-u"};
constexpr std::array<const char*, 12> MESOS{
    "de gener",  "de febrer", "de març",     "d'abril",   "de maig",     "de juny",
    "de juliol", "d'agost",   "de setembre", "d'octubre", "de novembre", "de desembre"};

// A stored date that is no day of the calendar ("20030230") is not to be read as one of antiquity.
constexpr int EARLIEST_TURNED = 1000;

std::string underHundred(int n) {
  if (n <= 31) return NUMEROS.at(n - 1);
  const std::string tens = DECENAS.at(n / 10 - 3);
  return n % 10 == 0 ? tens : tens + " y " + NUMEROS.at(n % 10 - 1);
}

std::string underThousand(int n) {
  if (n == 100) return "cien";
  if (n < 100) return underHundred(n);
  const std::string hundreds = CENTENAS.at(n / 100 - 1);
  return n % 100 == 0 ? hundreds : hundreds + " " + underHundred(n % 100);
}

std::string dayAndMonth(const text::Date& d) {
  return std::string(NUMEROS.at(d.day - 1)) + " de " + MESES.at(d.month - 1) + " de ";
}

}  // namespace

std::optional<text::Date> fechaDeDocumento(std::string_view fecha) {
  if (const auto d = text::parseStored(fecha)) return d;
  if (fecha.size() != 8) return std::nullopt;
  const std::string turned = std::string(fecha.substr(4, 4)) + std::string(fecha.substr(2, 2)) +
                             std::string(fecha.substr(0, 2));
  const auto d = text::parseStored(turned);
  return d && d->year >= EARLIEST_TURNED ? d : std::nullopt;
}

std::string numeroEnCastellano(int n) {
  if (n < 1000) return underThousand(n);
  const std::string thousands = n < 2000 ? "mil" : underThousand(n / 1000) + " mil";
  return n % 1000 == 0 ? thousands : thousands + " " + underThousand(n % 1000);
}

std::string fechaEnCastellano(const text::Date& d) {
  return dayAndMonth(d) + std::to_string(d.year);
}

std::string fechaEnCastellanoConAno(const text::Date& d) {
  return dayAndMonth(d) + (d.year > 0 ? numeroEnCastellano(d.year) : std::to_string(d.year));
}

std::string fechaEnCatalan(const text::Date& d) {
  return std::string(DIES.at(d.day - 1)) + " " + MESOS.at(d.month - 1) + " de " +
         std::to_string(d.year);
}

}  // namespace fidaleon::support
