#include "app/recent_files_view.h"

#include <QEnterEvent>
#include <QPainter>
#include <QPushButton>
#include <algorithm>

#include "app/recent_files.h"
#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

namespace fs = std::filesystem;

constexpr int kMostRows = 6;
constexpr int kRowHeight = 24;
constexpr int kWidth = 350;
constexpr int kWelcomeLeft = 140;   // of the scene's middle, as its text stands
constexpr int kWelcomeBottom = 90;  // below the scene's middle
constexpr int kInset = 2;           // of the texts in a row
constexpr int kGap = 12;            // between name and folder
constexpr QColor kHeadColor(200, 200, 200);
constexpr QColor kNameColor(255, 255, 255);
constexpr QColor kFolderColor(215, 215, 215);

class Row : public QPushButton {
public:
    Row(const fs::path& path, QWidget* parent)
        : QPushButton(parent),
          name_(ShownPath(path.filename())),
          folder_(ShownPath(path.parent_path())) {
        setAutoDefault(true);  // Return presses it
        setFlat(true);
        setCursor(Qt::PointingHandCursor);
        setFont(widgets::ChromeFont(9));
        setToolTip(ShownPath(path));
        setAccessibleName(name_ + ", " + folder_);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QRect place = rect().adjusted(kInset, 0, -kInset, 0);
        const auto draw = [&](int left, const QString& text) {
            const int room = place.right() + 1 - left;
            const QString shown = painter.fontMetrics().elidedText(text, Qt::ElideMiddle, room);
            painter.drawText(QRect(left, 0, room, height()),
                             Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
            return left + painter.fontMetrics().horizontalAdvance(shown);
        };
        QFont font = painter.font();
        font.setUnderline(underMouse());
        painter.setFont(font);
        painter.setPen(kNameColor);
        const int end = draw(place.left(), name_);
        font.setUnderline(false);
        painter.setFont(font);
        painter.setPen(kFolderColor);
        draw(end + kGap, folder_);
        if (hasFocus()) {
            painter.setPen(widgets::CurrentTheme().Accent);
            painter.drawRect(rect().adjusted(0, 0, -1, -1));
        }
    }
    void enterEvent(QEnterEvent*) override { update(); }
    void leaveEvent(QEvent*) override { update(); }

private:
    QString name_;
    QString folder_;
};

}  // namespace

RecentFilesView::RecentFilesView(const RecentFiles& files, QWidget& scene)
    : QWidget(&scene), files_(files), scene_(scene) {
    setObjectName("RecentFiles");
    setAccessibleName(Words::tr("Recent files"));
    scene.installEventFilter(this);
    connect(&files, &RecentFiles::Changed, this, &RecentFilesView::Fill);
    Fill();
}

void RecentFilesView::Fill() {
    qDeleteAll(rows_);
    rows_.clear();
    QWidget* before = &scene_;
    for (const fs::path& path : files_.Paths()) {
        if (rows_.size() == kMostRows)
            break;
        auto* row = new Row(path, this);
        row->setGeometry(0, kRowHeight * (static_cast<int>(rows_.size()) + 1), kWidth, kRowHeight);
        connect(row, &QPushButton::clicked, this, [this, path] { emit Wanted(path); });
        setTabOrder(before, row);
        before = row;
        rows_ += row;
    }
    Place();
}

void RecentFilesView::Place() {
    const int top = scene_.height() / 2 + kWelcomeBottom;
    const int room = (scene_.height() - top) / kRowHeight - 1;
    const int shown = std::clamp(room, 0, static_cast<int>(rows_.size()));
    for (int i = 0; i < rows_.size(); ++i)
        rows_[i]->setVisible(i < shown);
    const int left = std::max(scene_.width() / 2 - kWelcomeLeft - kInset, 0);
    setGeometry(left, top, kWidth, shown > 0 ? kRowHeight * (shown + 1) : 0);
}

bool RecentFilesView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        Place();
    return QWidget::eventFilter(watched, event);
}

void RecentFilesView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(widgets::ChromeFont(9));
    painter.setPen(kHeadColor);
    painter.drawText(QRect(kInset, 0, width(), kRowHeight), Qt::AlignLeft | Qt::AlignVCenter,
                     Words::tr("Recent files"));
}

}  // namespace orbelle::app
