#pragma once

#include <QModelIndex>
#include <QPalette>
#include <string>

class QAbstractItemModel;
class QObject;

namespace fidaleon::app {

/// Role of a tree item under which the name of its node is kept.
inline constexpr int NodeNameRole = Qt::UserRole;

/// The nodes that work, as a tree.
QAbstractItemModel* makeTreeModel(const QPalette& palette, QObject* owner);
/// Invalid when there is no node of that name.
QModelIndex treeIndexOf(const QAbstractItemModel& tree, const std::string& name);

}  // namespace fidaleon::app
