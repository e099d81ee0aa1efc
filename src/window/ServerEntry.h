#pragma once

#include <QWidget>

#include "parish/ParishFiles.h"

namespace fidaleon::app {

/// Enters the server of a parish once, so that neither a server that does not answer nor a password
/// that is missing is met by a window that stands still. Asks for the password when it has to.
/// Throws store::Error: Cancelled when the user no longer wants to wait, and with kWrongPassword
/// when the user gives none.
void enterServer(QWidget* over, const ParishFiles& files);

}  // namespace fidaleon::app
