// One program per session.
#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusPendingReply>
#include <QObject>
#include <QVariantMap>
#include <functional>
#include <optional>
#include <string>

// The program's place on the session bus, which one at a time can have. Interface thread.
class only_instance final : public QObject {
public:
    // Asks for the place at once, and does not wait for the answer.
    explicit only_instance(const QDBusConnection& bus);

    // Takes the place. False: another program has it and was asked to show its window, with the
    // token of this start (see launch_token.h). Waits up to 5 seconds for it, and says on standard
    // error when it does not answer; and for the bus itself, as long as the toolkit waits (25
    // seconds). Where a place cannot be had, for want of a session bus or
    // because the bus gives nobody the name, every start may go on; the former is said as well.
    bool take_place(const std::string& token);

    // `activated` is called when a later start asks for the window, with that start's token.
    void when_activated(std::function<void(const std::string& token)> activated);

private:
    QDBusPendingReply<uint> ask();
    bool claim();
    bool activate_other(const std::string& token);
    bool other_is_there();

    QDBusConnection bus_;
    std::optional<QDBusPendingReply<uint>> asked_; // the first answer, until it is looked at
    std::function<void(const std::string& token)> activated_;

    friend class application_object;
};

// org.freedesktop.Application, as far as a program without files and actions needs it.
class application_object final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit application_object(only_instance& owner)
        : QDBusAbstractAdaptor(&owner), owner_(owner) {}

public Q_SLOTS:
    void Activate(const QVariantMap& platform_data);

private:
    only_instance& owner_;
};
