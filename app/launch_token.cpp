#include "app/launch_token.h"

#include <QByteArray>
#include <QGuiApplication>

namespace {

constexpr const char* wayland_token = "XDG_ACTIVATION_TOKEN";
constexpr const char* x11_token = "DESKTOP_STARTUP_ID";

} // namespace

std::string launch_token() {
    const QByteArray token = qgetenv(wayland_token);
    return (token.isEmpty() ? qgetenv(x11_token) : token).toStdString();
}

// The toolkit's part for Wayland looks for it in the environment, and takes it away again. Others
// have no use for it, and would hand it on to whatever the program starts.
void use_launch_token(const std::string& token) {
    if (!token.empty() && QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
        qputenv(wayland_token, QByteArray::fromStdString(token));
    }
}
