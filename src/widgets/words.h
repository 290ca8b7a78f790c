// The texts that the window shows, in the language of the user.
#pragma once

#include <QCoreApplication>
#include <QLocale>

namespace orbelle {

// Words::tr("New") anywhere in `widgets` and `app`, once the translators are installed. Tables keep
// QT_TRANSLATE_NOOP("Words", "New") and are translated where they are shown.
class Words {
    Q_DECLARE_TR_FUNCTIONS(Words)
};

// As these texts write numbers, whatever the user's own locale is.
inline QLocale NumberLocale() {
    return QLocale(Words::tr("en_US", "the locale that numbers in these texts are written for"));
}

}  // namespace orbelle
