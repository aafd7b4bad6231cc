// The program: the one place that names concrete parts.
#include <QApplication>
#include <QDBusConnection>
#include <QIcon>
#include <QLocale>
#include <QPixmap>
#include <QTranslator>
#include <csignal>
#include <memory>
#include <string>

#include "app/controller.h"
#include "app/desktop_notices.h"
#include "app/display.h"
#include "app/first_paint.h"
#include "app/font_list.h"
#include "app/krview.h"
#include "app/launch_token.h"
#include "app/look.h"
#include "app/only_instance.h"
#include "app/outlet_names.h"
#include "app/pictures.h"
#include "app/safety_copy.h"
#include "app/string_table.h"
#include "app/system_version.h"
#include "app/treeview.h"
#include "app/ui_bridge.h"
#include "device/emulated_bus.h"
#include "device/linked_library.h"
#include "device/source_registry.h"
#include "device/sysfs_volume_uses.h"
#ifdef KESTREL_REACHES_REAL_BRIDGES
#include "device/udev_source.h"
#endif
#include "model/exit_gate.h"
#include "model/krtool.h"
#include "model/system_services.h"
#include "util/print.h"

namespace {

source_registry::sources sources_of_bridges() {
    source_registry::sources all;
    all.push_back(std::make_unique<emulated_bus>());
#ifdef KESTREL_REACHES_REAL_BRIDGES
    all.push_back(std::make_unique<udev_source>());
#endif
    return all;
}

linked_library library;
source_registry registry(sources_of_bridges());
steady_pauses sleeper;
system_clock wall;
detached_threads threads;
system_log console;
string_table texts;
exit_gate way_out;
desktop_version version;
copies_in_state_folder copies;
sysfs_volume_uses volumes;

} // namespace

krtool j(std::make_unique<treeview>(texts),
         {library, registry, registry, sleeper, wall, threads, console, texts, way_out, volumes});
window* ctrller = nullptr;

namespace {

QIcon program_icon() {
    QIcon icon;
    for (const char* size : {"16", "32", "64", "128"}) {
        const QString name = QStringLiteral("icon-%1.png").arg(QLatin1String(size));
        icon.addPixmap(QPixmap::fromImage(picture(name, 1)));
    }
    return icon;
}

// The window is made while the bus answers whether this is the only program. The program leaves
// from here with every thread still alive.
int run(QApplication& application, only_instance& place, const std::string& token) {
    QTranslator translator;
    const QString language = language_for(QLocale::system().uiLanguages());
    install_language(translator, language);
    apply_look(application);
    apply_language(language);
    texts.load(translated);
    ui_bridge bridge;
    desktop_notices desktop(QDBusConnection::sessionBus());
    controller window(
        {bridge, threads, version, copies, desktop, static_cast<const treeview&>(*j.tree)});
    if (!place.take_place(token)) {
        return 0;
    }
    place.when_activated([&window](const std::string& later) { window.bring_to_front(later); });
    window.awakeFromNib();
    window.applicationDidFinishLaunching();
    after_first_paint(window.mainview, [] { QApplication::setWindowIcon(program_icon()); });
    const int status = application.exec();
    way_out.leave(status);
    return status;
}

} // namespace

int main(int argc, char* argv[]) {
    std::signal(SIGPIPE, SIG_IGN);
    if (!display_at_hand(argc, argv)) {
        print_err("kestrelraid: no display: set DISPLAY or WAYLAND_DISPLAY, or start scripts/run, "
                  "which brings a virtual one\n");
        return 1;
    }
    const std::string token = launch_token();
    font_list fonts;
    QApplication application(argc, argv);
    fonts.wait();
    QApplication::setApplicationName(QStringLiteral("org.kestrelraid.KestrelRaid"));
    QApplication::setApplicationDisplayName(QStringLiteral("Kestrel RAID"));
    QApplication::setApplicationVersion(QStringLiteral(KESTREL_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("org.kestrelraid.KestrelRaid"));
    QApplication::setQuitOnLastWindowClosed(false);
    only_instance place(QDBusConnection::sessionBus());
#ifdef KESTREL_SHOWS_OUTLET_NAMES
    const outlet_names names;
#endif
    return run(application, place, token);
}
