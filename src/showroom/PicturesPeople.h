#pragma once

#include "parish/Desk.h"
#include "showroom/PictureAlbum.h"

namespace fidaleon::app {

/// The dialogs of the people of a sample parish, their groups, their tasks and their reports.
void photographPeople(PictureAlbum& album, Photographer& user, Desk& desk);

}  // namespace fidaleon::app
