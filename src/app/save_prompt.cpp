#include "app/save_prompt.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "widgets/artwork.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

constexpr char kHead[] = QT_TRANSLATE_NOOP("Words", "Save Icon Document? ");
constexpr int kTextWidth = 400;
constexpr QSize kPictureSize(38, 38);

QLabel* Paragraph(const QString& text) {
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    label->setFixedWidth(kTextWidth);
    return label;
}

QLabel* Head(const QString& text) {
    QLabel* label = Paragraph(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

}  // namespace

SavePrompt::SavePrompt(QWidget* parent) : QDialog(parent) {
    setWindowTitle(Words::tr(kHead));
    auto* whole = new QHBoxLayout(this);
    whole->setContentsMargins(20, 20, 20, 16);
    whole->setSpacing(16);
    whole->setSizeConstraint(QLayout::SetFixedSize);
    auto* picture = new QLabel;
    picture->setPixmap(widgets::Artwork("information", kPictureSize, devicePixelRatioF()));
    whole->addWidget(picture, 0, Qt::AlignTop);
    auto* layout = new QVBoxLayout;
    layout->setSpacing(8);
    whole->addLayout(layout);

    layout->addWidget(Head(Words::tr(kHead)));
    layout->addWidget(
        Paragraph(Words::tr("Save the icon document as VOLF format? You can open and continue "
                            "editing the icon document next time.")));
    layout->addSpacing(12);
    layout->addWidget(Head(Words::tr("What's VOLF format? ")));
    layout->addWidget(Paragraph(Words::tr("The VOLF format is Orbelle software document. ")));
    layout->addWidget(Paragraph(
        Words::tr("Orbelle's native format, stores an image with support for most imaging "
                  "options available in Orbelle.")));
    layout->addSpacing(16);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    layout->addLayout(buttons);
    const auto addButton = [&](const QString& caption, SavePromptAnswer answer) {
        auto* button = new QPushButton(caption);
        buttons->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, answer] {
            value_ = answer;
            accept();
        });
        return button;
    };
    QPushButton* yes = addButton(Words::tr("&Yes"), SavePromptAnswer::Yes);
    addButton(Words::tr("&No"), SavePromptAnswer::No);
    addButton(Words::tr("&Cancel"), SavePromptAnswer::Cancel);
    yes->setDefault(true);
    yes->setFocus();
}

}  // namespace orbelle::app
