// The manual on the screen: its contents, one chapter in a window of its own, one in a pop-up, and
// the F1 key of every window. A topic number is the anchor "t<number>" of the manual.
#pragma once

#include <QString>

// "userman.hlp" in the program's folder: the manual as one HTML page.
QString HelpFilename();

// The three give false after a message when the manual cannot be read. A topic that the manual
// does not know, 0 included, shows its beginning.
bool ShowHelpContents();
bool ShowHelpTopic(int topic);
// Over the window in use, gone with the next click beside it.
bool ShowHelpTopicPopup(int topic);

// From now on F1 opens the topic of the window in use: for a box or an input line as a pop-up, else
// through the switchboard.
void installHelpKey();
