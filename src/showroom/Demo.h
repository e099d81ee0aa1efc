#pragma once

#include <filesystem>
#include <iosfwd>

namespace fidaleon::app {

/// Walks the road of one new baptism through the real dialogs, without a window: a new parish, its
/// setup data, a book, an entry, a second child of the same family, a correction, an annulment, and
/// the documents. Says each step on `out` and in DIR/demo.log, checks after each that the tables
/// hold what they should, and leaves both databases and the PDFs in the directory. True when every
/// step did what it should.
bool runDemo(const std::filesystem::path& directory, std::ostream& out);

}  // namespace fidaleon::app
