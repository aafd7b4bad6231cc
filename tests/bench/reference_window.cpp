// What the program's window is measured against: the bare toolkit with a window of the same size,
// and a few of each kind of thing that is in it.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QWidget>

namespace {

constexpr int width = 800;
constexpr int height = 630;

void add_tabs(QWidget* window, int top) {
    auto* tabs = new QTabWidget(window);
    tabs->setGeometry(128, top, 648, 180);
    tabs->addTab(new QWidget, QStringLiteral("One"));
    tabs->addTab(new QWidget, QStringLiteral("Two"));
}

void add_labels_and_buttons(QWidget* window) {
    constexpr int columns = 8;
    constexpr int number = 40;
    for (int i = 0; i < number; ++i) {
        const QRect place(130 + i % columns * 80, 60 + i / columns * 26, 76, 24);
        const QString text = QStringLiteral("Text %1").arg(i);
        QWidget* one = i % 4 == 0 ? static_cast<QWidget*>(new QPushButton(text, window))
                                  : new QLabel(text, window);
        one->setGeometry(place);
    }
}

void add_tree(QWidget* window) {
    auto* tree = new QTreeWidget(window);
    tree->setGeometry(10, 300, 110, 200);
    auto* root = new QTreeWidgetItem(tree, {QStringLiteral("Bridge")});
    new QTreeWidgetItem(root, {QStringLiteral("Disk")});
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QWidget window(nullptr, Qt::FramelessWindowHint);
    window.setAttribute(Qt::WA_TranslucentBackground);
    window.setFixedSize(width, height);
    auto* picture = new QLabel(&window);
    picture->setGeometry(10, 10, 110, 110);
    picture->setPixmap(QPixmap(QStringLiteral(":/icon/org.kestrelraid.KestrelRaid.png")));
    auto* box = new QComboBox(&window);
    box->setGeometry(128, 20, 368, 32);
    box->addItem(QStringLiteral("Enclosure"));
    add_labels_and_buttons(&window);
    add_tabs(&window, 210);
    add_tabs(&window, 420);
    add_tree(&window);
    window.show();
    return QApplication::exec();
}
