// The texts that the window shows, in the language of the user.
#pragma once

#include <QCoreApplication>

namespace orbelle {

// Words::tr("New") anywhere in `widgets` and `app`, once the translators are installed. Tables keep
// QT_TRANSLATE_NOOP("Words", "New") and are translated where they are shown.
class Words {
    Q_DECLARE_TR_FUNCTIONS(Words)
};

}  // namespace orbelle
