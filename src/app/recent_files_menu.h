// File/Open Recent.
#pragma once

#include <QMenu>

#include "app/window_actions.h"

namespace orbelle::app {

// A file each, by its name behind a digit; the whole path is its tip. Without files it is disabled.
class RecentFilesMenu : public QMenu {
    Q_OBJECT

public:
    RecentFilesMenu(const WindowContext& context, QWidget* parent);

    // Stands in the place of an entry.
    void Join(QAction& entry);

private:
    void Fill();

    WindowContext context_;
};

}  // namespace orbelle::app
