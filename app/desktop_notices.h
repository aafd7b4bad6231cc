// Notices through the desktop's notification service.
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>
#include <map>
#include <string>

#include "app/notices.h"

class QDBusMessage;

// Over org.freedesktop.Notifications. Every call is sent and its answer taken up when it comes, if
// ever; nothing waits for the service. Interface thread.
class desktop_notices final : public QObject, public notices {
    Q_OBJECT

public:
    // A bus that is not connected shows nothing.
    explicit desktop_notices(const QDBusConnection& bus);

    void when_opened(std::function<void(const std::string& token)> opened) override;
    int show(const notice& what) override;
    void close(int shown) override;
    void hand_over() override;

private Q_SLOTS:
    void ActivationToken(quint32 id, const QString& token);
    void ActionInvoked(quint32 id, const QString& action);
    void NotificationClosed(quint32 id, quint32 reason);

private:
    // Sends a call to the service; `answered` gets what it returns, and nothing on an error.
    void call(const char* method, const QVariantList& arguments,
              std::function<void(const QDBusMessage& answer)> answered);
    void listen(const char* signal, const char* slot);
    void send(int shown, const notice& what, const QStringList& capabilities);
    void sent(int shown, quint32 id);
    bool on_show(quint32 id) const;
    void forget_service();

    QDBusConnection bus_;
    QDBusServiceWatcher service_;
    std::function<void(const std::string& token)> opened_;
    std::map<int, quint32> open_; // the service's numbers; 0 while it has none of them
    int last_ = 0;
    bool handed_over_ = true;
    std::string token_; // comes before the choice that it belongs to
};
