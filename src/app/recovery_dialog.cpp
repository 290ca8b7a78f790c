#include "app/recovery_dialog.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "app/file_names.h"
#include "app/message_boxes.h"
#include "app/shared_image.h"
#include "document/compositor.h"
#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

constexpr int kPictureSide = 64;  // logical pixels
constexpr int kVisibleRows = 3;
constexpr int kListWidth = 420;
constexpr QColor kCheckerColor(232, 232, 232);
constexpr char kHead[] =
    QT_TRANSLATE_NOOP("Words", "Your work was not saved when Varnel Orbelle ended.");
constexpr char kText[] = QT_TRANSLATE_NOOP(
    "Words",
    "It can be restored as it was. What you keep for later is offered again at the next start.");

QImage PictureOf(document::Document document, qreal scale) {
    const int side = qRound(kPictureSide * scale);
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    document::Compositor compositor;
    graphics::Bitmap canvas;
    compositor.Compose(document.Master, graphics::InterpolationMode::NearestNeighbor, canvas);
    const QImage page = SharedImage(canvas);
    const QSize size = page.size().scaled(picture.size(), Qt::KeepAspectRatio);
    const QRect place({(side - size.width()) / 2, (side - size.height()) / 2}, size);
    QPainter painter(&picture);
    if (graphics::AlphaOf(document.Background) != 0)
        painter.fillRect(place, QColor::fromRgba(document.Background));
    else
        widgets::DrawChecker(painter, place, kCheckerColor);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, page);
    painter.end();
    picture.setDevicePixelRatio(scale);
    return picture;
}

QString EntryText(const formats::JournalEntry& entry) {
    const document::Page& page = entry.Document.Master;
    const QString name = TextOf(entry.Document.Path.filename());
    const QString time =
        QLocale().toString(QDateTime::fromMSecsSinceEpoch(entry.Time), QLocale::ShortFormat);
    const QString layers = page.LayerCount() == 1
                               ? Words::tr("1 layer")
                               : Words::tr("%n layers", nullptr, page.LayerCount());
    const QString contents =
        Words::tr("%1, %2 x %3 pixels").arg(layers).arg(page.Width).arg(page.Height);
    return QStringList{name.isEmpty() ? Words::tr("Not saved yet") : name, time, contents}.join(
        '\n');
}

// As wide as the list. A layout of fixed size does not ask for the height that this needs.
void WrapWords(QLabel& label) {
    const int width = widgets::WidthFor(kListWidth);
    label.setWordWrap(true);
    label.setFixedSize(width, label.heightForWidth(width));
}

}  // namespace

RecoveryDialog::RecoveryDialog(std::vector<formats::FoundJournal>& journals, QWidget* parent)
    : QDialog(parent), journals_(journals), list_(new QListWidget) {
    setWindowTitle(Words::tr("Restore Work"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(8);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    auto* head = new QLabel(Words::tr(kHead));
    QFont bold = head->font();
    bold.setBold(true);
    head->setFont(bold);
    WrapWords(*head);
    layout->addWidget(head);
    auto* text = new QLabel(Words::tr(kText));
    WrapWords(*text);
    layout->addWidget(text);
    layout->addSpacing(8);

    list_->setAccessibleName(Words::tr("Work that was not saved"));
    list_->setIconSize({kPictureSide, kPictureSide});
    list_->setSpacing(4);
    for (const formats::FoundJournal& journal : journals_) {
        const QPixmap picture =
            QPixmap::fromImage(PictureOf(journal.Entry().Document, devicePixelRatioF()));
        QIcon icon(picture);
        icon.addPixmap(picture, QIcon::Selected);  // not tinted
        new QListWidgetItem(icon, EntryText(journal.Entry()), list_);
    }
    QPalette palette = list_->palette();
    palette.setColor(QPalette::Highlight, widgets::PressedColor());
    palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
    list_->setPalette(palette);
    list_->setCurrentRow(0);
    const int rows = std::min<int>(kVisibleRows, list_->count());
    list_->setFixedSize(
        widgets::WidthFor(kListWidth),
        rows * (list_->sizeHintForRow(0) + 2 * list_->spacing()) + 2 * list_->frameWidth());
    layout->addWidget(list_);
    layout->addSpacing(8);

    auto* buttons = new QDialogButtonBox;
    QPushButton* restore = buttons->addButton(Words::tr("&Restore"), QDialogButtonBox::AcceptRole);
    QPushButton* keep =
        buttons->addButton(Words::tr("&Keep for Later"), QDialogButtonBox::RejectRole);
    QPushButton* discard =
        buttons->addButton(Words::tr("&Discard"), QDialogButtonBox::DestructiveRole);
    layout->addWidget(buttons);
    connect(restore, &QPushButton::clicked, this, &QDialog::accept);
    connect(keep, &QPushButton::clicked, this, &QDialog::reject);
    connect(discard, &QPushButton::clicked, this, &RecoveryDialog::Discard);
    connect(list_, &QListWidget::itemActivated, this, &QDialog::accept);
    restore->setDefault(true);
    restore->setFocus();
}

int RecoveryDialog::Chosen() const {
    return list_->currentRow();
}

void RecoveryDialog::Discard() {
    const int chosen = Chosen();
    if (!AskOkCancel(this, Words::tr("Discard this work for good?").toStdString(),
                     Words::tr("Discard").toStdString()))
        return;
    journals_[static_cast<std::size_t>(chosen)].Remove();
    journals_.erase(journals_.begin() + chosen);
    delete list_->takeItem(chosen);
    if (journals_.empty())
        reject();
}

}  // namespace orbelle::app
