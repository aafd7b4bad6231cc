#include "app/tabviewdel.h"

#include "app/tab_view.h"
#include "model/krtool.h"
#include "model/window.h"

bool tabviewdel::shouldSelectTabViewItem(const tab_item& item) const {
    if (item.identifier != rebuild_identifier) {
        return true;
    }
    const std::optional<chip_snapshot> current = j.current_chip();
    if (current && current->chip.rebuild_possible != 0) {
        return true;
    }
    ctrller->show_message(j.with.texts.text("two_raid1_disks_for_rebuild"));
    return false;
}
