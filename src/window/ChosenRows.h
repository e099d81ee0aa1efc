#pragma once

#include <cstdint>
#include <vector>

class QTableView;

namespace fidaleon::app {

/// Which rows of the view of a RowsFilter are chosen. All of a long list are known at once.
int chosenCount(const QTableView& view);
/// From top to bottom.
std::vector<int> chosenRows(const QTableView& view);
std::vector<std::int32_t> chosenKeys(const QTableView& view);
/// Chooses that row and no other, whatever keys are held down.
void chooseOnly(QTableView& view, int row);
/// Chooses those of the keys that the view shows, and nothing else; the current row stays.
void chooseKeys(QTableView& view, std::vector<std::int32_t> keys);

}  // namespace fidaleon::app
