#pragma once

#include "app/Desk.h"
#include "app/PictureAlbum.h"

namespace fidaleon::app {

/// The dialogs of the people of a sample parish, their groups, their tasks and their reports.
void photographPeople(PictureAlbum& album, Photographer& user, Desk& desk);

}  // namespace fidaleon::app
