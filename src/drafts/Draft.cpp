#include "drafts/Draft.h"

#include <nlohmann/json.hpp>

namespace fidaleon::app {
namespace {

using nlohmann::json;

constexpr int VERSION = 1;

json written(const forms::Contents& contents) {
  json fields = json::array();
  for (const forms::Field& f : contents.fields)
    fields.push_back({{"control", f.control},
                      {"etiqueta", f.label},
                      {"texto", f.text},
                      {"clave", std::to_string(f.data)}});
  return {{"campos", fields}, {"propio", contents.own}};
}

forms::Contents contentsOf(const json& from) {
  forms::Contents contents;
  for (const json& f : from.at("campos"))
    contents.fields.push_back({f.at("control"), f.at("etiqueta"), f.at("texto"),
                               std::stoll(f.at("clave").get<std::string>())});
  contents.own = from.at("propio");
  return contents;
}

Draft draftOf(const json& all) {
  Draft draft;
  draft.parish = all.at("parroquia");
  draft.task = {all.at("orden"), all.at("nodo"), all.at("registro"), all.at("lugar")};
  draft.day = all.at("dia");
  draft.time = all.at("hora");
  for (const json& form : all.at("ventanas"))
    draft.levels.push_back({form.at("ventana"), form.at("titulo"), contentsOf(form.at("antes")),
                            contentsOf(form.at("ahora"))});
  return draft;
}

}  // namespace

std::string Draft::Level::readable() const {
  std::string lines = forms::readable(forms::changes(before, now));
  if (now.own != before.own) lines += "\n" + now.own;
  return lines;
}

std::string Draft::readable() const {
  std::string all;
  for (const Level& level : levels)
    if (level.changed()) all += level.caption + "\n\n" + level.readable() + "\n";
  return all;
}

std::string Draft::text() const {
  json forms = json::array();
  for (const Level& level : levels)
    forms.push_back({{"ventana", level.form},
                     {"titulo", level.caption},
                     {"antes", written(level.before)},
                     {"ahora", written(level.now)}});
  const json all{{"version", VERSION},
                 {"parroquia", parish},
                 {"orden", task.command},
                 {"nodo", task.node},
                 {"registro", task.record},
                 {"lugar", task.place},
                 {"dia", day},
                 {"hora", time},
                 {"ventanas", forms}};
  // What is not UTF-8 must not cost the rest.
  return all.dump(-1, ' ', false, json::error_handler_t::replace);
}

std::optional<Draft> Draft::parse(const std::string& text) {
  try {
    const json all = json::parse(text);
    if (all.at("version") != VERSION) return std::nullopt;
    return draftOf(all);
  } catch (const json::exception&) {
  } catch (const std::logic_error&) {  // a key that is no number
  }
  return std::nullopt;
}

}  // namespace fidaleon::app
