// The data of the device tree.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "model/device_tree.h"
#include "model/services.h"

// A branch (a label and its children) or a leaf (a label by itself). Labels are UTF-8.
struct tree_node {
    std::string label;
    bool leaf = false;
    std::vector<tree_node> children;
};

// One branch per chip; under it its array and the disks of that, or its single disks. The records
// lock guards it. Items are nodes of `data`, and none is the root; they live until the next change.
class treeview final : public device_tree {
public:
    explicit treeview(const text_lookup& texts) : texts_(texts) {}

    const std::vector<tree_node>& getdata() const { return data; }
    void cleartree() override;
    void addchipFirewire(bool firewire) override;
    void addraid(std::int32_t position, const std::string& withstring) override;
    void adddisk(std::int32_t position, const std::string& withstring, bool Raid) override;

    int numberOfChildrenOfItem(const tree_node* item) const;
    // Nothing when the index is out of range.
    const tree_node* child(int index, const tree_node* item) const;
    // The only column's text.
    std::string objectValueForTableColumn(int column, const tree_node* item) const;
    bool isItemExpandable(const tree_node* item) const;

private:
    tree_node* branch_at(std::int32_t position);
    const std::vector<tree_node>& children_of(const tree_node* item) const;

    const text_lookup& texts_;
    std::vector<tree_node> data;
};
