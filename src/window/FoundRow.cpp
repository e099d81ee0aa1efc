#include "window/FoundRow.h"

#include <QCoreApplication>
#include <algorithm>

#include "core/contract/CcNodos.h"
#include "search/Source.h"
#include "text/Dates.h"
#include "window/Icons.h"

namespace fidaleon::app {
namespace {

const char* nodeOf(const search::Hit& hit) {
  if (hit.collaborator) return CcNodos::COLABORADOR;
  return CcNodos::PADRON;
}

QString shown(std::int32_t day) {
  const text::Date date{day / 10000, day / 100 % 100, day % 100};
  return day == 0 ? QString() : QString::fromStdString(text::toShort(date));
}

QString tr(const char* text) {
  return QCoreApplication::translate("FoundRow", text);
}

}  // namespace

Choice choiceOf(const search::Hit& hit, const std::string& edition) {
  Choice choice;
  const Sacramento* sacrament = search::sourceOf(hit.in).sacrament;
  choice.node = sacrament ? findNode((hit.request ? CcNodos::SOLICITUDES : CcNodos::PARTIDAS) +
                                     std::string(sacrament->palabra))
                          : findNode(nodeOf(hit));
  choice.id = hit.key;
  choice.annulled = hit.annulled;
  choice.edition = edition;
  return choice;
}

std::optional<std::pair<search::Register, std::int32_t>> entryOf(const Choice& choice) {
  if (!choice.node || choice.id == 0) return {};
  const bool person =
      choice.node->kind == NodeKind::People || choice.node->kind == NodeKind::Collaborators;
  if (person) return std::pair{search::Register::Census, choice.id};
  if (!choice.node->sacrament) return {};
  return std::pair{static_cast<search::Register>(choice.node->sacrament->byte), choice.id};
}

const Command* openingCommand(const Choice& choice) {
  const auto found = std::find_if(commands().begin(), commands().end(),
                                  [&](const Command& c) { return c.opens && applies(c, choice); });
  return found == commands().end() ? nullptr : &*found;
}

const Command* printingCommand(const Choice& choice) {
  const auto found = std::find_if(commands().begin(), commands().end(), [&](const Command& c) {
    return c.document && c.toolbar && applies(c, choice);
  });
  return found == commands().end() ? nullptr : &*found;
}

QString registerOf(const search::Hit& hit) {
  using search::Register;
  switch (hit.in) {
    case Register::Baptism:
      return hit.request ? tr("Solicitud de bautismo") : tr("Bautismo");
    case Register::Confirmation:
      return hit.request ? tr("Solicitud de confirmación") : tr("Confirmación");
    case Register::Marriage:
      return hit.request ? tr("Expediente de matrimonio") : tr("Matrimonio");
    case Register::Death:
      return tr("Defunción");
    case Register::Census:
      return hit.collaborator ? tr("Colaborador") : tr("Padrón");
  }
  return {};
}

QIcon iconOf(const search::Hit& hit, const QPalette& palette) {
  constexpr const char* NAMES[] = {"baptism", "confirmation", "marriage", "death", "person"};
  return icon(hit.collaborator ? "people" : NAMES[static_cast<int>(hit.in)], palette);
}

QString daysOf(const search::Hit& hit) {
  QStringList days;
  if (hit.day != 0) days << shown(hit.day);
  if (hit.born != 0) days << tr("nació el %1").arg(shown(hit.born));
  return days.join(", ");
}

}  // namespace fidaleon::app
