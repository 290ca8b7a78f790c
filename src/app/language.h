// The language of the window.
#pragma once

#include <QLocale>
#include <QTranslator>

namespace orbelle::app {

// As long as it lives, texts are in the first language that the user wants and we have; those of
// the toolkit, too. English needs no translation. There has to be one before the first text is
// asked for.
class Language {
public:
    explicit Language(const QLocale& wanted = QLocale::system());

private:
    QTranslator toolkit_;
    QTranslator ours_;
};

}  // namespace orbelle::app
