// What the rows of a tree look like. Interface thread.
#pragma once

class QPainter;
class QStyleOption;
class QTreeView;

constexpr int height_of_tree_row = 30; // pixels
constexpr int left_of_tree_row = 4;    // before icon and text

void dress_tree(QTreeView& tree);
void paint_tree_row(QPainter& painter, const QStyleOption& option);
// The arrow before a row with others in it.
void paint_branch(QPainter& painter, const QStyleOption& option);
