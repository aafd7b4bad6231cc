// Lets tests of the whole program find a widget by its name: Qt 6.4 has no ids for that in AT-SPI.
#pragma once

#include <QAccessible>
#include <QObject>

// While it lives and assistive programs are served, each named widget's accessible description ends
// with "[name]". Interface thread.
class outlet_names final : public QObject, private QAccessible::ActivationObserver {
public:
    outlet_names();
    ~outlet_names() override;
    outlet_names(const outlet_names&) = delete;
    outlet_names& operator=(const outlet_names&) = delete;

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void accessibilityActiveChanged(bool active) override;
};
