// The small boxes that tell or ask one thing.
#pragma once

#include <string>

class QWidget;

namespace orbelle::app {

// A text and an OK button; no icon.
void ShowPlainMessage(QWidget* parent, const std::string& text);

// The same with a button that takes `address`, which the text tells, to the clipboard.
void ShowMessageToCopy(QWidget* parent, const std::string& text, const std::string& address);

// The same with a button that opens the folder which the text is about; true: it was pressed.
bool OfferFolder(QWidget* parent, const std::string& text);

// OK and Cancel with the information icon, Cancel the default; true: OK.
bool AskOkCancel(QWidget* parent, const std::string& text, const std::string& title);

}  // namespace orbelle::app
