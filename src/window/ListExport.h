#pragma once

#include <QString>

#include "catalogue/Workplace.h"
#include "export/ListTable.h"
#include "parish/Desk.h"

class QTableView;
class QWidget;

namespace fidaleon::app {

enum class ListFormat { Csv, Ods };

/// What the view of a RowsFilter shows, or of it the rows that are chosen: its columns from left to
/// right, its rows from top to bottom. Texts are whole, also where the view shows less of them. As
/// long as the view shows it.
ListTable readList(const QTableView& view, Extent extent = Extent::Entire);
/// By the ending of the file; `otherwise` when it has none of the two.
ListFormat formatOf(const QString& file, ListFormat otherwise);

/// Writes the list under a passing name and then puts it in the place of the file, if there is one.
/// Empty when done; otherwise why not, in Spanish, and the file is as it was.
std::string writeList(const ListTable& table, ListFormat format, const QString& file);

/// Asks where to save that, in which of the two formats, and saves it. The answer is what to tell
/// in passing; it is empty when the user gave up or has been told of a failure.
QString saveList(Desk& desk, const QTableView& view, Extent extent, QWidget* over);

}  // namespace fidaleon::app
