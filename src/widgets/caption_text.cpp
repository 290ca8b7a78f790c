#include "widgets/caption_text.h"

#include <QPainter>

#include "widgets/accessible_roles.h"
#include "widgets/chrome.h"
#include "widgets/image_store.h"

namespace orbelle::widgets {

namespace {

constexpr QColor kCaptionColor(128, 128, 128);
constexpr QSize kPictureSize(32, 32);
constexpr int kGap = 8;
constexpr int kUsualWidth = 200;

}  // namespace

CaptionText::CaptionText(const QString& caption, QWidget* parent) : QWidget(parent) {
    InstallAccessibleRoles();
    setFont(ChromeFont(8.25));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    SetCaption(caption);
}

QString CaptionText::Caption() const {
    return caption_;
}

void CaptionText::SetCaption(const QString& caption) {
    caption_ = caption;
    setAccessibleName(caption);
    updateGeometry();
    update();
}

void CaptionText::SetPicture(const QString& artwork) {
    picture_ = artwork;
    updateGeometry();
    update();
}

int CaptionText::TextLeft() const {
    return picture_.isEmpty() ? 0 : kPictureSize.width() + kGap;
}

QSize CaptionText::sizeHint() const {
    return {kUsualWidth, heightForWidth(kUsualWidth)};
}

int CaptionText::heightForWidth(int width) const {
    const QRect room(0, 0, qMax(width - TextLeft(), 1), QWIDGETSIZE_MAX);
    const int text = fontMetrics().boundingRect(room, Qt::TextWordWrap, caption_).height();
    return picture_.isEmpty() ? text : qMax(text, kPictureSize.height());
}

void CaptionText::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!picture_.isEmpty())
        ImageStore(picture_).Drawing(painter, QRect(QPoint(0, 0), kPictureSize), 1);
    painter.setPen(kCaptionColor);
    painter.drawText(rect().adjusted(TextLeft(), 0, 0, 0), Qt::TextWordWrap, caption_);
}

}  // namespace orbelle::widgets
