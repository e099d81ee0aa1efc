#include "parish/legacy/ImportOrder.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <map>

#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon::app {

namespace fs = std::filesystem;

namespace {

using Setter = std::function<void(const std::string&)>;

constexpr std::array<const char*, 4> REGISTERS = {"bautismo", "confirmacion", "matrimonio",
                                                  "defuncion"};

bool yesOrNo(const std::string& value) {
  for (const char* yes : {"sí", "si", "1"})
    if (text::equalsNoCase(value, yes)) return true;
  for (const char* no : {"no", "0"})
    if (text::equalsNoCase(value, no)) return false;
  throw WrongOrder("«" + value + "» no es ni sí ni no.");
}

std::string twoDigits(const std::string& value) {
  if (value.size() == 2 &&
      std::all_of(value.begin(), value.end(), [](char c) { return c >= '0' && c <= '9'; }))
    return value;
  throw WrongOrder("«" + value + "» no son dos cifras, como 19 o 20.");
}

bool isNameFirst(const std::string& value) {
  if (value == "nombre") return true;
  if (value == "apellidos") return false;
  throw WrongOrder("«" + value + "» no es «nombre» ni «apellidos».");
}

int wholeNumber(const std::string& value) {
  const auto number = text::toInteger(value);
  if (!number) throw WrongOrder("«" + value + "» no es un número.");
  return *number;
}

void splitPlace(const std::string& value, ImportOrder::Register& r) {
  const std::size_t sign = value.find('/');
  if (sign == std::string::npos)
    throw WrongOrder("«" + value + "» no tiene la forma «Población / Provincia».");
  r.town = text::trim(value.substr(0, sign));
  r.province = text::trim(value.substr(sign + 1));
}

std::map<std::string, Setter> settersOf(ImportOrder& order, const fs::path& folder) {
  const auto path = [folder](fs::path& to) {
    return [folder, &to](const std::string& value) { to = folder / value; };
  };
  const auto text = [](std::string& to) { return [&to](const std::string& value) { to = value; }; };
  std::map<std::string, Setter> all = {
      {"parroquia", path(order.parish)},
      {"informe", path(order.report)},
      {"institucion", text(order.institution)},
      {"codigos", text(order.codePage)},
      {"ano00", [&order](const std::string& v) { order.year00 = twoDigits(v); }},
      {"orden", [&order](const std::string& v) { order.nameFirst = isNameFirst(v); }},
      {"ensayo", [&order](const std::string& v) { order.trial = yesOrNo(v); }}};
  for (std::size_t i = 0; i < REGISTERS.size(); ++i) {
    ImportOrder::Register& r = order.registers[i];
    const std::string name = REGISTERS[i] + std::string(".");
    all[name + "carpeta"] = path(r.folder);
    all[name + "parroquia"] = text(r.parish);
    all[name + "diocesis"] = text(r.diocese);
    all[name + "usar"] = [&r](const std::string& v) { r.useParish = yesOrNo(v); };
    all[name + "municipio"] = [&r](const std::string& v) { splitPlace(v, r); };
    all[name + "formato"] = [&r](const std::string& v) { r.format = wholeNumber(v); };
  }
  return all;
}

void requireWhole(const ImportOrder& order) {
  if (order.parish.empty()) throw WrongOrder("Falta «parroquia», la carpeta de la parroquia.");
  bool any = false;
  for (std::size_t i = 0; i < REGISTERS.size(); ++i) {
    const ImportOrder::Register& r = order.registers[i];
    any |= !r.folder.empty();
    if (!r.folder.empty() && r.format == 0)
      throw WrongOrder(std::string("Falta «") + REGISTERS[i] +
                       ".formato», el formato de sus libros: un número de 1 a 4.");
  }
  if (!any) throw WrongOrder("Falta la carpeta de algún registro, como «bautismo.carpeta».");
}

}  // namespace

ImportOrder readOrder(const fs::path& file) {
  std::ifstream in(file);
  if (!in) throw WrongOrder("No se puede leer «" + file.string() + "».");
  ImportOrder order;
  const auto setters = settersOf(order, file.parent_path());
  int number = 0;
  for (std::string line; std::getline(in, line);) {
    ++number;
    line = text::trim(text::replaceAll(line, "\r", ""));
    if (line.empty() || line.starts_with('#')) continue;
    const std::size_t sign = std::min(line.find('='), line.size());
    const std::string value = sign < line.size() ? text::trim(line.substr(sign + 1)) : "";
    const auto setter = setters.find(text::trim(line.substr(0, sign)));
    const std::string where = file.filename().string() + ", línea " + std::to_string(number) + ": ";
    if (setter == setters.end()) throw WrongOrder(where + "no se conoce «" + line + "».");
    try {
      if (!value.empty()) setter->second(value);
    } catch (const WrongOrder& wrong) {
      throw WrongOrder(where + wrong.what());
    }
  }
  requireWhole(order);
  return order;
}

}  // namespace fidaleon::app
