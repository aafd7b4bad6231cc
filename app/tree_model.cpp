#include "app/tree_model.h"

#include <utility>

#include "app/pictures.h"
#include "app/plain_text.h"

namespace {

QString kind_of(const treeview& tree, const tree_node* node, bool top) {
    if (top) {
        return QStringLiteral("tree-enclosure");
    }
    return tree.isItemExpandable(node) || !node->leaf ? QStringLiteral("tree-array")
                                                      : QStringLiteral("tree-disk");
}

} // namespace

tree_model::tree_model(QObject* parent) : QAbstractItemModel(parent) {}

void tree_model::set_data_source(std::unique_ptr<const treeview> source) {
    beginResetModel();
    entries_.clear();
    shown_ = std::move(source);
    if (shown_) {
        list_children(-1);
        for (std::size_t next = 0; next < entries_.size(); ++next) {
            list_children(static_cast<int>(next));
        }
    }
    endResetModel();
}

// Appends the children of the entry, all of them in a row.
void tree_model::list_children(int parent) {
    const tree_node* item = nullptr;
    if (parent >= 0) {
        entry& owner = entries_[static_cast<std::size_t>(parent)];
        owner.first_child = static_cast<int>(entries_.size());
        item = owner.node;
    }
    for (int row = 0; row < shown_->numberOfChildrenOfItem(item); ++row) {
        entries_.push_back({shown_->child(row, item), parent, row, 0});
    }
}

QModelIndex tree_model::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    const int first = parent.isValid() ? entries_[parent.internalId()].first_child : 0;
    const int id = first + row;
    return createIndex(row, column, static_cast<quintptr>(id));
}

QModelIndex tree_model::parent(const QModelIndex& index) const {
    if (!index.isValid()) {
        return {};
    }
    const int above = entries_[index.internalId()].parent;
    if (above < 0) {
        return {};
    }
    const auto id = static_cast<std::size_t>(above);
    return createIndex(entries_[id].row, 0, static_cast<quintptr>(id));
}

int tree_model::rowCount(const QModelIndex& parent) const {
    if (!shown_ || parent.column() > 0) {
        return 0;
    }
    return shown_->numberOfChildrenOfItem(node_at(parent));
}

int tree_model::columnCount(const QModelIndex& /*parent*/) const {
    return 1;
}

QVariant tree_model::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const tree_node* node = node_at(index);
    switch (role) {
    case Qt::DisplayRole:
        return one_line(shown_->objectValueForTableColumn(index.column(), node));
    case Qt::DecorationRole:
        return picture_icon(
            QStringLiteral("%1.png").arg(kind_of(*shown_, node, !index.parent().isValid())));
    default:
        return {};
    }
}

QVariant tree_model::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool heading = orientation == Qt::Horizontal && section == 0 && role == Qt::DisplayRole;
    return heading ? QVariant(heading_) : QVariant();
}

const tree_node* tree_model::node_at(const QModelIndex& index) const {
    return index.isValid() ? entries_[index.internalId()].node : nullptr;
}
