// The device tree as Qt's views want it.
#pragma once

#include <QAbstractItemModel>
#include <memory>
#include <vector>

#include "app/treeview.h"

// Shows a copy of the data, so that nobody changes what is shown. Interface thread.
class tree_model final : public QAbstractItemModel {
public:
    explicit tree_model(QObject* parent = nullptr);

    // Shows this in place of what was shown; none shows nothing.
    void set_data_source(std::unique_ptr<const treeview> source);

    // The heading of the only column.
    void set_heading(const QString& heading) { heading_ = heading; }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    // A node of the copy, with the way back to the root (parent -1).
    struct entry {
        const tree_node* node;
        int parent;
        int row;
        int first_child; // its children stand one behind the other
    };

    void list_children(int parent);
    const tree_node* node_at(const QModelIndex& index) const;

    std::unique_ptr<const treeview> shown_;
    std::vector<entry> entries_;
    QString heading_;
};
