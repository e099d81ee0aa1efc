#include "window/TreeModel.h"

#include <QStandardItemModel>
#include <map>

#include "catalogue/NodeView.h"
#include "window/Icons.h"

namespace fidaleon::app {
namespace {

const char* iconOf(NodeKind kind) {
  switch (kind) {
    case NodeKind::Folder:
      return "folder";
    case NodeKind::Books:
      return "book";
    case NodeKind::Entries:
      return "entry";
    case NodeKind::Requests:
      return "request";
    case NodeKind::Institutions:
      return "church";
    case NodeKind::Provinces:
      return "map";
    case NodeKind::Towns:
      return "town";
    case NodeKind::Reports:
    case NodeKind::ListReports:
      return "print";
    case NodeKind::People:
      return "person";
    case NodeKind::Collaborators:
      return "people";
    case NodeKind::Activities:
      return "activity";
    case NodeKind::Offices:
      return "office";
    case NodeKind::Tasks:
      return "calendar";
  }
  return "";
}

}  // namespace

QAbstractItemModel* makeTreeModel(const QPalette& palette, QObject* owner) {
  auto* model = new QStandardItemModel(owner);
  std::map<std::int32_t, QStandardItem*> items;
  for (const NodeView& v : nodeViews()) {
    if (!v.node.Visible) continue;
    auto* item = new QStandardItem(icon(iconOf(v.kind), palette),
                                   QString::fromStdString(v.node.Descripcion));
    item->setData(QString::fromStdString(v.node.Nombre), NodeNameRole);
    QStandardItem* parent =
        v.node.CodPadre ? items.at(v.node.CodPadre) : model->invisibleRootItem();
    parent->appendRow(item);
    items[v.node.IDNodo] = item;
  }
  return model;
}

QModelIndex treeIndexOf(const QAbstractItemModel& tree, const std::string& name) {
  if (tree.rowCount() == 0) return {};
  const auto found = tree.match(tree.index(0, 0), NodeNameRole, QString::fromStdString(name), 1,
                                Qt::MatchExactly | Qt::MatchRecursive);
  return found.isEmpty() ? QModelIndex() : found.first();
}

}  // namespace fidaleon::app
