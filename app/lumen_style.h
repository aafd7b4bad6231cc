// The program's own style: what its frames, texts and buttons look like.
// Roles are dynamic properties: role and tone of texts and surfaces, kind of buttons, running and
// chosen. A widget whose property changes later has to be polished again: see restyle().
#pragma once

class QStyle;

// The caller owns it. Interface thread.
QStyle* make_style();
