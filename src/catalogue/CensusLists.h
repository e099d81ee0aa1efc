#pragma once

#include "catalogue/NodeView.h"

namespace fidaleon::app {

/// The lists of the people of the parish and of what they do. A person is in the list of each of
/// their roles, also without a town or an institution.
void describePeople(NodeView& view);
void describeCollaborators(NodeView& view);
/// With the number of their groups and of the memberships in them.
void describeActivities(NodeView& view);
void describeOffices(NodeView& view);
void describeTasks(NodeView& view);

}  // namespace fidaleon::app
