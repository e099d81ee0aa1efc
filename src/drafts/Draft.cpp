#include "drafts/Draft.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace fidaleon::app {
namespace {

constexpr int VERSION = 1;

QString in(const std::string& text) {
  return QString::fromStdString(text);
}

std::string out(const QJsonValue& value) {
  return value.toString().toStdString();
}

QJsonObject json(const forms::Contents& contents) {
  QJsonArray fields;
  for (const forms::Field& f : contents.fields)
    fields.append(QJsonObject{{"control", in(f.control)},
                              {"etiqueta", in(f.label)},
                              {"texto", in(f.text)},
                              {"clave", QString::number(f.data)}});
  return {{"campos", fields}, {"propio", in(contents.own)}};
}

forms::Contents contentsOf(const QJsonObject& json) {
  forms::Contents contents;
  for (const QJsonValue& f : json["campos"].toArray())
    contents.fields.push_back({out(f["control"]), out(f["etiqueta"]), out(f["texto"]),
                               f["clave"].toString().toLongLong()});
  contents.own = out(json["propio"]);
  return contents;
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
  QJsonArray forms;
  for (const Level& level : levels)
    forms.append(QJsonObject{{"ventana", in(level.form)},
                             {"titulo", in(level.caption)},
                             {"antes", json(level.before)},
                             {"ahora", json(level.now)}});
  const QJsonObject all{
      {"version", VERSION},    {"parroquia", in(parish)}, {"orden", in(task.command)},
      {"nodo", in(task.node)}, {"registro", task.record}, {"lugar", task.place},
      {"dia", in(day)},        {"hora", in(time)},        {"ventanas", forms}};
  return QJsonDocument(all).toJson(QJsonDocument::Compact).toStdString();
}

std::optional<Draft> Draft::parse(const std::string& text) {
  const QJsonObject all = QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
  if (all["version"].toInt() != VERSION) return std::nullopt;
  Draft draft;
  draft.parish = out(all["parroquia"]);
  draft.task = {out(all["orden"]), out(all["nodo"]), all["registro"].toInt(), all["lugar"].toInt()};
  draft.day = out(all["dia"]);
  draft.time = out(all["hora"]);
  for (const QJsonValue& form : all["ventanas"].toArray())
    draft.levels.push_back({out(form["ventana"]), out(form["titulo"]),
                            contentsOf(form["antes"].toObject()),
                            contentsOf(form["ahora"].toObject())});
  return draft;
}

}  // namespace fidaleon::app
