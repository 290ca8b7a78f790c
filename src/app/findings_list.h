// What the check of the icon has found, a line each.
#pragma once

#include <QListWidget>
#include <vector>

#include "formats/icon_check.h"

namespace orbelle::app {

// "hard to see on white (contrast 1.4 : 1)"
QString TextOf(const formats::Finding& finding);

// Empty until something is shown; four lines high at most, then it scrolls.
class FindingsList : public QListWidget {
    Q_OBJECT

public:
    FindingsList();

    // In place of what is shown. Where the line that the keys came to is still there, they stay.
    void Show(const std::vector<formats::Finding>& findings);

signals:
    // By a click, Return or the space bar.
    void Wanted(const formats::Finding& finding, bool byMouse);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void Tell(int row, bool byMouse);
    void AddLine(const QString& text, bool isFinding);
    void FitHeight();

    std::vector<formats::Finding> findings_;
};

}  // namespace orbelle::app
