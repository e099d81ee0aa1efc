#pragma once

#include "parish/NewParish.h"
#include "store/Connection.h"
#include "text/Dates.h"

namespace fidaleon::app {

/// Fills an empty parish database with an invented one: two institutions with their keepers, the
/// towns of several provinces, an old book of four entries a folio that begins in the twenties, an
/// open new book, some hundred baptisms of several generations, and requests that wait for a book.
/// The same parish comes out every time. Runs inside the caller's transaction, if there is one.
void fillSampleParish(store::Connection& connection, const NewParish& parish,
                      const text::Date& today);

}  // namespace fidaleon::app
