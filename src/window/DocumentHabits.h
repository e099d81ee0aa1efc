#pragma once

#include <QPrinter>
#include <QString>
#include <memory>

class QWidget;

namespace fidaleon::app {

class Desk;

// Where documents go, which is remembered from one to the next. Without a desk nothing is.

/// Asks for the file of a PDF, in the folder of the last one. Empty when the user gave up.
QString choosePdf(Desk* desk, QWidget* over, const QString& title, const QString& name);
/// Where the last document was saved, or where documents usually are.
QString folderOfDocuments(Desk* desk);
void rememberFolderOf(Desk* desk, const QString& file);

/// False when no printer is installed, which the user has then been told.
bool hasPrinter(QWidget* over);
/// Asks for the printer, beginning with the last one, and for the copies. With `pages` also for
/// which of them; 0 is for several documents, each whole and on paper. Null when the user gave up.
std::unique_ptr<QPrinter> choosePrinter(Desk* desk, QWidget* over, int pages);

}  // namespace fidaleon::app
