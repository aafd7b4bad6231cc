#include "app/treeview.h"

#include "app/display_text.h"
#include "util/functions.h"
#include "util/print.h"

void treeview::cleartree() {
    data.clear();
}

void treeview::addchipFirewire(bool firewire) {
    const std::string number = inttostring(data.size() + 1);
    data.push_back(
        {texts_.text("device") + " " + number + (firewire ? " (1394)" : " (USB)"), false, {}});
    print_out("added");
}

void treeview::addraid(std::int32_t position, const std::string& withstring) {
    if (tree_node* chip = branch_at(position); chip != nullptr) {
        chip->children.push_back({device_text(withstring), false, {}});
    }
}

void treeview::adddisk(std::int32_t position, const std::string& withstring, bool Raid) {
    tree_node* parent = branch_at(position);
    if (parent == nullptr || (Raid && parent->children.empty())) {
        return;
    }
    if (Raid) {
        parent = &parent->children.front();
    }
    parent->children.push_back({device_text(withstring), true, {}});
}

int treeview::numberOfChildrenOfItem(const tree_node* item) const {
    return static_cast<int>(children_of(item).size());
}

const tree_node* treeview::child(int index, const tree_node* item) const {
    const std::vector<tree_node>& children = children_of(item);
    const auto place = static_cast<std::size_t>(index);
    return index < 0 || place >= children.size() ? nullptr : &children[place];
}

std::string treeview::objectValueForTableColumn(int /*column*/, const tree_node* item) const {
    return item == nullptr ? "Root" : item->label;
}

bool treeview::isItemExpandable(const tree_node* item) const {
    return numberOfChildrenOfItem(item) > 0;
}

tree_node* treeview::branch_at(std::int32_t position) {
    const auto place = static_cast<std::size_t>(position);
    return position < 0 || place >= data.size() ? nullptr : &data[place];
}

const std::vector<tree_node>& treeview::children_of(const tree_node* item) const {
    return item == nullptr ? data : item->children;
}
