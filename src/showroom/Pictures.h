#pragma once

#include <filesystem>
#include <iosfwd>

#include "showroom/PictureAlbum.h"

namespace fidaleon::app {

/// Renders every dialog (each tab and each mode that changes what is shown), the windows of the
/// program and one page of every document to PNG files in the directory, for people to look at.
/// True when all of them were made.
bool renderPictures(const std::filesystem::path& directory, std::ostream& out);

/// The windows and dialogs of one edition, each shown once under the name of its picture.
bool lookAtWindows(const PictureAlbum::Look& look, std::ostream& out);

}  // namespace fidaleon::app
