#include "app/only_instance.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <utility>

#include "util/print.h"

namespace {

const QString name = QStringLiteral("org.kestrelraid.KestrelRaid");
const QString path = QStringLiteral("/org/kestrelraid/KestrelRaid");
const QString bus_name = QStringLiteral("org.freedesktop.DBus");
const QString bus_path = QStringLiteral("/org/freedesktop/DBus");
const QString application = QStringLiteral("org.freedesktop.Application");
// Two names for one thing: whichever the desktop of the other program goes by.
const QString wayland_token = QStringLiteral("activation-token");
const QString x11_token = QStringLiteral("desktop-startup-id");

} // namespace

only_instance::only_instance(const QDBusConnection& bus) : bus_(bus) {
    new application_object(*this);
    // Before the name is ours: whoever sees the name finds the object.
    bus_.registerObject(path, this, QDBusConnection::ExportAdaptors);
    if (bus_.isConnected()) {
        asked_ = ask();
    }
}

// Not by the toolkit's registerService, which waits for the answer.
QDBusPendingReply<uint> only_instance::ask() {
    constexpr uint do_not_queue = 4;
    QDBusMessage request =
        QDBusMessage::createMethodCall(bus_name, bus_path, bus_name, QStringLiteral("RequestName"));
    request << name << do_not_queue;
    return bus_.asyncCall(request);
}

bool only_instance::take_place(const std::string& token) {
    if (!bus_.isConnected()) {
        print_err("kestrelraid: no session bus: a second start opens a second window, and the "
                  "desktop is not notified\n");
        return true;
    }
    if (claim()) {
        return true;
    }
    if (activate_other(token)) {
        return false;
    }
    // The other one may just have ended instead of answering.
    if (claim() || !other_is_there()) {
        return true;
    }
    print_err("kestrelraid: is running already, but does not answer\n");
    return false;
}

bool only_instance::claim() {
    QDBusPendingReply<uint> answer = asked_ ? *asked_ : ask();
    asked_.reset();
    answer.waitForFinished();
    constexpr uint owner_now = 1;
    constexpr uint owner_already = 4;
    return answer.isValid() && (answer.value() == owner_now || answer.value() == owner_already);
}

bool only_instance::activate_other(const std::string& token) {
    constexpr int patience_ms = 5000;
    QVariantMap platform_data;
    if (!token.empty()) {
        platform_data[wayland_token] = QString::fromStdString(token);
        platform_data[x11_token] = QString::fromStdString(token);
    }
    QDBusMessage call =
        QDBusMessage::createMethodCall(name, path, application, QStringLiteral("Activate"));
    call.setAutoStartService(false);
    call << platform_data;
    return bus_.call(call, QDBus::Block, patience_ms).type() == QDBusMessage::ReplyMessage;
}

bool only_instance::other_is_there() {
    return bus_.interface()->isServiceRegistered(name).value();
}

void only_instance::when_activated(std::function<void(const std::string& token)> activated) {
    activated_ = std::move(activated);
}

void application_object::Activate(const QVariantMap& platform_data) {
    const QString token = platform_data.value(wayland_token).toString();
    if (owner_.activated_) {
        owner_.activated_(
            (token.isEmpty() ? platform_data.value(x11_token).toString() : token).toStdString());
    }
}
