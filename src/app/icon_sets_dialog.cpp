#include "app/icon_sets_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <algorithm>
#include <set>

#include "app/file_names.h"
#include "app/icon_set_captions.h"
#include "app/settings.h"
#include "app/shared_image.h"
#include "formats/icns_file.h"
#include "formats/icon_sets.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

using formats::IconSet;

constexpr char kSetsSetting[] = "IconSets";
constexpr char kFolderSetting[] = "IconSetsFolder";
constexpr int kThumbnail = 48;  // logical pixels a side at most
constexpr int kThumbnailSpacing = 8;
constexpr std::size_t kMostThumbnails = 6;
constexpr int kColumns = 2;

// In the order of formats::IconSet.
constexpr const char* kContents[] = {
    QT_TRANSLATE_NOOP("Words", "An .ico file of 14 sizes, 16 to 256"),
    QT_TRANSLATE_NOOP("Words", "An .icns file of 16 to 1024"),
    QT_TRANSLATE_NOOP("Words", "PNG files of 16 to 512 in the folders of a theme"),
    QT_TRANSLATE_NOOP("Words", "favicon.ico, pictures for home screens, their manifest"),
    QT_TRANSLATE_NOOP("Words", "Launcher icons of five densities, adaptive ones too"),
    QT_TRANSLATE_NOOP("Words", "An AppIcon set with its one picture of 1024"),
};
constexpr int kPlatformCount = std::size(kContents);
static_assert(kPlatformCount == std::size(kIconSetCaptions));

// All pictures of a set, each once, the smallest first.
std::set<formats::SetPicture> PicturesOf(const formats::SetSource& source, IconSet set) {
    std::set<formats::SetPicture> pictures;
    const auto add = [&](int side) { pictures.insert({side, side, formats::Ground::None}); };
    for (const formats::SetFile& file : FilesOfSet(set, source.Name, source.Background)) {
        if (const auto* picture = std::get_if<formats::SetPicture>(&file.Content))
            pictures.insert(*picture);
        else if (const auto* icon = std::get_if<formats::SetIcon>(&file.Content))
            std::ranges::for_each(icon->Sizes, add);
        else if (std::holds_alternative<formats::SetIcns>(file.Content))
            std::ranges::for_each(formats::kIcnsTypes, add, &formats::IcnsType::Side);
    }
    return pictures;
}

// Some of them, the smallest and the largest always. `most`: those that are larger are shown in
// that size, one of each kind.
std::vector<formats::SetPicture> Samples(const std::set<formats::SetPicture>& pictures, int most) {
    std::vector<formats::SetPicture> seen;
    for (const formats::SetPicture& picture : pictures) {
        const auto looksLikeIt = [&](const formats::SetPicture& other) {
            return std::min(other.Side, most) == std::min(picture.Side, most) &&
                   (other.IconSide == other.Side) == (picture.IconSide == picture.Side) &&
                   other.Ground == picture.Ground;
        };
        std::erase_if(seen, looksLikeIt);
        seen.push_back(picture);
    }
    if (seen.size() <= kMostThumbnails)
        return seen;
    std::vector<formats::SetPicture> samples;
    for (std::size_t i = 0; i < kMostThumbnails; ++i)
        samples.push_back(seen[i * (seen.size() - 1) / (kMostThumbnails - 1)]);
    return samples;
}

// Small ones pixel by pixel, on one line.
QPixmap Thumbnails(const formats::SetSource& source, IconSet set, qreal ratio) {
    const int most = qRound(kThumbnail * ratio), spacing = qRound(kThumbnailSpacing * ratio);
    const std::vector<formats::SetPicture> samples = Samples(PicturesOf(source, set), most);
    QPixmap row(static_cast<int>(samples.size()) * (most + spacing), most);
    row.fill(Qt::transparent);
    QPainter painter(&row);
    int x = 0;
    for (const formats::SetPicture& sample : samples) {
        QImage picture = SharedImage(DrawSetPicture(source, sample));
        if (sample.Side > most)
            picture = picture.scaled(most, most, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        painter.drawImage(x, most - picture.height(), picture);
        x += picture.width() + spacing;
    }
    row.setDevicePixelRatio(ratio);
    return row;
}

}  // namespace

IconSetsDialog::IconSetsDialog(const formats::SetSource& source,
                               const std::filesystem::path& folder, QWidget* parent)
    : QDialog(parent) {
    setWindowTitle(Words::tr("Icon Set"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(16);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(32);
    grid->setVerticalSpacing(16);
    layout->addLayout(grid);
    for (int i = 0; i < kPlatformCount; ++i)
        grid->addWidget(MakeBox(source, static_cast<IconSet>(i)), i / kColumns, i % kColumns,
                        Qt::AlignTop);
    layout->addWidget(MakeFolderRow(folder));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    export_ = buttons->addButton(Words::tr("&Export"), QDialogButtonBox::AcceptRole);
    export_->setDefault(true);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &IconSetsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &IconSetsDialog::reject);
    ShowState();
    boxes_.front()->setFocus();
}

QWidget* IconSetsDialog::MakeBox(const formats::SetSource& source, IconSet set) {
    const auto place = static_cast<std::size_t>(set);
    const std::string_view name = formats::kIconSetNames[place];
    const QString key = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    const QStringList chosen = Settings().value(kSetsSetting).toString().split(',');

    auto* room = new QWidget;
    auto* layout = new QGridLayout(room);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(0);
    layout->setVerticalSpacing(6);
    auto* box = new QCheckBox(Words::tr(kIconSetCaptions[place]));
    box->setObjectName(key);
    box->setAccessibleDescription(Words::tr(kContents[place]));
    box->setChecked(chosen.contains(key));
    connect(box, &QCheckBox::toggled, this, &IconSetsDialog::ShowState);
    boxes_.push_back(box);
    auto* contents = new QLabel(Words::tr(kContents[place]));
    contents->setObjectName("caption");
    auto* pictures = new QLabel;
    pictures->setPixmap(Thumbnails(source, set, devicePixelRatioF()));
    layout->addWidget(box, 0, 0, 1, 2);
    layout->addWidget(contents, 1, 1);
    layout->addWidget(pictures, 2, 1);
    // Below the words of the box.
    layout->setColumnMinimumWidth(0, style()->pixelMetric(QStyle::PM_IndicatorWidth) +
                                         style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing));
    layout->setColumnStretch(1, 1);
    return room;
}

QWidget* IconSetsDialog::MakeFolderRow(const std::filesystem::path& folder) {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    const QString remembered = Settings().value(kFolderSetting).toString();
    folder_ = new QLineEdit(remembered.isEmpty() ? TextOf(folder) : remembered);
    folder_->setObjectName("Folder");
    connect(folder_, &QLineEdit::textChanged, this, &IconSetsDialog::ShowState);
    auto* label = new QLabel(Words::tr("&Folder:"));
    label->setBuddy(folder_);
    auto* browse = new QPushButton(Words::tr("B&rowse..."));
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, [this] {
        const QString chosen =
            QFileDialog::getExistingDirectory(this, Words::tr("Icon Set"), folder_->text());
        if (!chosen.isEmpty())
            folder_->setText(QDir::toNativeSeparators(chosen));
    });
    layout->addWidget(label);
    layout->addWidget(folder_, 1);
    layout->addWidget(browse);
    return row;
}

void IconSetsDialog::ShowState() {
    if (!export_)
        return;
    const bool isComplete =
        !folder_->text().isEmpty() && std::ranges::any_of(boxes_, &QCheckBox::isChecked);
    export_->setEnabled(isComplete);
    export_->setToolTip(isComplete ? QString() : Words::tr("Choose a platform and a folder first"));
}

SetChoice IconSetsDialog::Choice() const {
    SetChoice choice{{}, PathOf(folder_->text())};
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        if (boxes_[i]->isChecked())
            choice.Sets.push_back(static_cast<IconSet>(i));
    }
    return choice;
}

void IconSetsDialog::accept() {
    QStringList chosen;
    for (const QCheckBox* box : boxes_) {
        if (box->isChecked())
            chosen.push_back(box->objectName());
    }
    Settings settings;
    settings.setValue(kSetsSetting, chosen.join(','));
    settings.setValue(kFolderSetting, folder_->text());
    QDialog::accept();
}

}  // namespace orbelle::app
