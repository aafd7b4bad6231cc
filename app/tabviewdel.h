// The delegate of the configuration and rebuild tabs.
#pragma once

struct tab_item;

// Refuses the rebuild tab unless a RAID 1 can be rebuilt.
class tabviewdel {
public:
    // Of the rebuild tab item.
    static constexpr int rebuild_identifier = 1;

    // False: refused, and the user has been told why. Interface thread.
    bool shouldSelectTabViewItem(const tab_item& item) const;
};
