#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>
#include <optional>
#include <utility>

#include "catalogue/Command.h"
#include "search/Searcher.h"

namespace fidaleon::app {

/// The row of a list that a hit is: the node of that list, and what commands need to know. Whatever
/// is done to it goes the way of the commands, with their questions and locks.
Choice choiceOf(const search::Hit& hit, const std::string& edition);
/// The entry or person that a row of a list is; nothing for the rows of other lists.
std::optional<std::pair<search::Register, std::int32_t>> entryOf(const Choice& choice);
/// What Enter does to it. Null when nothing does.
const Command* openingCommand(const Choice& choice);
/// The document that is asked for first: the certificate of an entry, the sheet of a request. Null
/// where there is none.
const Command* printingCommand(const Choice& choice);

/// "Bautismo", "Solicitud de matrimonio".
QString registerOf(const search::Hit& hit);
QIcon iconOf(const search::Hit& hit, const QPalette& palette);
/// "03/05/1924", or what is known: "nacimiento 30/04/1924".
QString daysOf(const search::Hit& hit);

}  // namespace fidaleon::app
