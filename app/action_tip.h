// What a control does and by which key, or why it cannot be used now.
#pragma once

class QAbstractButton;
class QKeySequence;
class QString;
class QWidget;

// All texts are plain, whatever they hold. Interface thread.

// Gives a widget a tool tip, and what a screen reader says in its place: it would read the tip's
// markup aloud.
void set_tip(QWidget* widget, const QString& shown, const QString& said);
void set_tip(QWidget* widget, const QString& text);

// "name (key)", the key as the user's system writes it.
QString name_and_key(const QString& name, const QKeySequence& key);

// Gives a button its key. From now on its tip says "name (key)" while it is enabled, and the reason
// while it is not; the name is its accessible one. Call it again after the button's text or name
// has changed: the toolkit drops the key together with the text.
void set_key(QAbstractButton* button, const QKeySequence& key);

// Why the control is disabled, for as long as it is; empty: that is not known. May be called while
// it is enabled. Takes a new name of the control into its tip as well.
void set_reason(QWidget* control, const QString& reason);
