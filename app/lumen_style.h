// The style below the style sheet.
#pragma once

class QStyle;

// The caller owns it. Interface thread.
QStyle* make_style();
