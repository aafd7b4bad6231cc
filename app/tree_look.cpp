#include "app/tree_look.h"

#include <QPainter>
#include <QStyleOption>
#include <QTreeView>

#include "app/pictures.h"

void dress_tree(QTreeView& tree) {
    tree.setFrameShape(QFrame::NoFrame);
    tree.viewport()->setAutoFillBackground(false);
    tree.viewport()->setAttribute(Qt::WA_Hover);
}

// In opaque colours: the toolkit paints a row twice, as a whole and by its cell.
void paint_tree_row(QPainter& painter, const QStyleOption& option) {
    if (option.state.testFlag(QStyle::State_Selected)) {
        painter.fillRect(option.rect, QColor(0x25, 0x33, 0x3e));
    } else if (option.state.testFlag(QStyle::State_MouseOver)) {
        painter.fillRect(option.rect, QColor(0x23, 0x2b, 0x35));
    }
}

void paint_branch(QPainter& painter, const QStyleOption& option) {
    if (option.state.testFlag(QStyle::State_Children)) {
        const bool open = option.state.testFlag(QStyle::State_Open);
        paint_picture(painter, option.rect,
                      open ? QStringLiteral("branch-open.png")
                           : QStringLiteral("branch-closed.png"));
    }
}
