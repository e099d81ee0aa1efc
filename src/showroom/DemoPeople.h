#pragma once

namespace fidaleon::app {

class DemoWalk;

/// The people of the parish: a person of the census, found again by their name; offices, an
/// activity with two groups, a collaborator in both, a task, and the reports on them.
void walkPeople(DemoWalk& walk);

}  // namespace fidaleon::app
