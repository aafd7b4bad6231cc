#include "app/desktop_notices.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <algorithm>
#include <utility>

#include "app/plain_text.h"

namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString program = QStringLiteral("org.kestrelraid.KestrelRaid"); // desktop entry and icon
const QString default_action = QStringLiteral("default");
constexpr quint32 new_notice = 0;
constexpr int time_of_the_desktop = -1;

QVariantMap hints(bool urgent) {
    constexpr uchar normal = 1;
    constexpr uchar critical = 2;
    return {{QStringLiteral("urgency"), QVariant::fromValue(urgent ? critical : normal)},
            {QStringLiteral("desktop-entry"), program}};
}

// Only some services read markup; the others would show the escapes.
QString body(const std::string& text, const QStringList& capabilities) {
    const QString plain = plain_lines(text);
    return capabilities.contains(QLatin1String("body-markup")) ? plain.toHtmlEscaped() : plain;
}

} // namespace

desktop_notices::desktop_notices(const QDBusConnection& bus)
    : bus_(bus), service_(service, bus, QDBusServiceWatcher::WatchForOwnerChange) {
    connect(&service_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this] { forget_service(); });
    listen("NotificationClosed", SLOT(NotificationClosed(quint32, quint32)));
    listen("ActivationToken", SLOT(ActivationToken(quint32, QString)));
    listen("ActionInvoked", SLOT(ActionInvoked(quint32, QString)));
}

void desktop_notices::listen(const char* signal, const char* slot) {
    bus_.connect(service, path, service, QLatin1String(signal), this, slot);
}

void desktop_notices::when_opened(std::function<void(const std::string& token)> opened) {
    opened_ = std::move(opened);
}

int desktop_notices::show(const notice& what) {
    const int shown = ++last_;
    open_[shown] = 0;
    call("GetCapabilities", {}, [this, shown, what](const QDBusMessage& answer) {
        send(shown, what, answer.arguments().value(0).toStringList());
    });
    return shown;
}

void desktop_notices::send(int shown, const notice& what, const QStringList& capabilities) {
    if (!open_.contains(shown)) {
        return;
    }
    const QStringList actions = {default_action, one_line(what.open_label)};
    call("Notify",
         {QStringLiteral("Kestrel RAID"), new_notice, program, one_line(what.title),
          body(what.text, capabilities), actions, hints(what.urgent), time_of_the_desktop},
         [this, shown](const QDBusMessage& answer) {
             sent(shown, answer.arguments().value(0).toUInt());
         });
}

void desktop_notices::sent(int shown, quint32 id) {
    if (const auto found = open_.find(shown); found != open_.end()) {
        found->second = id;
    } else {
        call("CloseNotification", {id}, {});
    }
}

void desktop_notices::close(int shown) {
    const auto found = open_.find(shown);
    if (found == open_.end()) {
        return;
    }
    const quint32 id = found->second;
    open_.erase(found);
    if (id != 0) {
        call("CloseNotification", {id}, {});
        handed_over_ = false;
    }
}

// What is not on the bus when the program leaves is lost. An answer of the bus itself says that it
// has all that was sent before.
void desktop_notices::hand_over() {
    if (handed_over_) {
        return;
    }
    constexpr int patience_ms = 500;
    const QString bus_itself = QStringLiteral("org.freedesktop.DBus");
    bus_.call(QDBusMessage::createMethodCall(bus_itself, QStringLiteral("/org/freedesktop/DBus"),
                                             bus_itself, QStringLiteral("GetId")),
              QDBus::Block, patience_ms);
    handed_over_ = true;
}

// Another service counts anew: its numbers name other programs' notices.
void desktop_notices::forget_service() {
    for (auto& [shown, id] : open_) {
        id = 0;
    }
}

void desktop_notices::NotificationClosed(quint32 id, quint32 /*reason*/) {
    for (auto& [shown, known] : open_) {
        if (known == id) {
            known = 0;
        }
    }
}

void desktop_notices::ActivationToken(quint32 id, const QString& token) {
    if (on_show(id)) {
        token_ = token.toStdString();
    }
}

void desktop_notices::ActionInvoked(quint32 id, const QString& action) {
    if (on_show(id) && action == default_action) {
        opened_(std::exchange(token_, {}));
    }
}

bool desktop_notices::on_show(quint32 id) const {
    return id != 0 && std::any_of(open_.begin(), open_.end(),
                                  [id](const auto& one) { return one.second == id; });
}

void desktop_notices::call(const char* method, const QVariantList& arguments,
                           std::function<void(const QDBusMessage& answer)> answered) {
    QDBusMessage message =
        QDBusMessage::createMethodCall(service, path, service, QLatin1String(method));
    message.setArguments(arguments);
    auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [watcher, then = std::move(answered)] {
                watcher->deleteLater();
                if (!watcher->isError() && then) {
                    then(watcher->reply());
                }
            });
}
