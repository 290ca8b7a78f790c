#include "app/findings_list.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <algorithm>
#include <cmath>

#include "filters/outline_contrast.h"
#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

using formats::Fault;
using formats::Finding;

constexpr int kMostLines = 4;
constexpr int kLineHeight = 20;
constexpr double kPoints = 8;
constexpr int kInset = 4;  // above the first line and below the last
QString LineOf(const Finding& finding) {
    return QString("%1: %2").arg(finding.Size).arg(TextOf(finding));
}

}  // namespace

QString TextOf(const Finding& finding) {
    switch (finding.Kind) {
        case Fault::Empty:
            return Words::tr("nothing can be seen");
        case Fault::Contrast:
            // Rounded down: what is below the limit must not read as the limit.
            return (finding.Ground == filters::kLightGround
                        ? Words::tr("hard to see on white (contrast %1 : 1)")
                        : Words::tr("hard to see on dark (contrast %1 : 1)"))
                .arg(NumberLocale().toString(std::floor(finding.Contrast * 10) / 10, 'f', 1));
        case Fault::Fringe:
            return Words::tr("foreign colours along the edge");
        case Fault::Upscaled:
            return Words::tr("larger than the page that it is made from");
        case Fault::Clipped:
            break;
    }
    return Words::tr("the page cuts layers off");
}

FindingsList::FindingsList() {
    setObjectName("Findings");
    setAccessibleName(Words::tr("Findings"));
    setFont(widgets::ChromeFont(kPoints));
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { Tell(row(item), true); });
    FitHeight();
}

void FindingsList::Tell(int row, bool byMouse) {
    if (row >= 0 && row < static_cast<int>(findings_.size()))
        emit Wanted(findings_[static_cast<std::size_t>(row)], byMouse);
}

void FindingsList::AddLine(const QString& text, bool isFinding) {
    auto* line = new QListWidgetItem(text, this);
    line->setSizeHint(QSize(0, widgets::HeightFor(kLineHeight, kPoints)));
    if (!isFinding)
        line->setFlags(Qt::NoItemFlags);
}

void FindingsList::Show(const std::vector<Finding>& findings) {
    if (findings == findings_ && count() > 0)
        return;
    const QListWidgetItem* current = currentItem();
    const QString text = current ? current->text() : QString();
    const int row = currentRow();
    findings_ = findings;
    clear();
    for (const Finding& finding : findings_)
        AddLine(LineOf(finding), true);
    if (findings_.empty())
        AddLine(Words::tr("Nothing found"), false);
    const auto same = findItems(text, Qt::MatchExactly);
    if (!same.empty())
        setCurrentItem(same.first());
    else if (row >= 0 && !findings_.empty())
        setCurrentRow(std::min(row, count() - 1));
    FitHeight();
}

void FindingsList::FitHeight() {
    setFixedHeight(std::clamp(count(), 1, kMostLines) * widgets::HeightFor(kLineHeight, kPoints) +
                   2 * kInset);
}

void FindingsList::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            return Tell(currentRow(), false);
        default:
            QListWidget::keyPressEvent(event);
    }
}

void FindingsList::focusInEvent(QFocusEvent* event) {
    QListWidget::focusInEvent(event);
    if (currentRow() < 0)
        setCurrentRow(0);
}

}  // namespace orbelle::app
