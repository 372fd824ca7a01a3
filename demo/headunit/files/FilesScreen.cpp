#include "demo/headunit/files/FilesScreen.h"

#include <algorithm>

#include "demo/headunit/Captions.h"
#include "demo/headunit/Label.h"
#include "demo/headunit/files/FittedName.h"
#include "demo/headunit/files/Music.h"
#include "demo/headunit/files/SizeText.h"

namespace korvane::demo {

namespace {

constexpr int kLookMs = 1000;
/// The view's labels, whose text does not scroll.
constexpr int kViewLeft = 170;
constexpr int kViewWidth = 460;
constexpr int kLabelWidth = kViewWidth - 10;
constexpr int kLargeText = 22;
constexpr int kSmallText = 16;
constexpr wchar_t kMedium[] = L"\\USB";
constexpr wchar_t kMediumName[] = L"MY USB";

}  // namespace

FilesScreen* FilesScreen::instance_ = nullptr;

FilesScreen::FilesScreen() : browser_(kMedium) {
    instance_ = this;
}

FilesScreen::~FilesScreen() {
    instance_ = nullptr;
}

bool FilesScreen::OnInit() {
    SetBkgSurf(L"SourceBkg.lqi");
    CreateFolderLabels();
    CreateView();
    timer_.SetTimer(kLookMs);
    timer_.SetCallBack(this, &FilesScreen::OnTick);
    return true;
}

void FilesScreen::CreateFolderLabels() {
    PlaceLabel(folder_, {24, 244, 76, 112}, 26, eText_Left);
    folder_.EnableTextScroll(true);
    folder_.EnableScrollTextTooLong(true);
    folder_.SetTextScrollNum(1);
    PlaceLabel(number_, {24, 164, 112, 140}, 20, eText_Left, LabelColor::Grey);
    AddChild(&folder_);
    AddChild(&number_);
}

void FilesScreen::CreateView() {
    // A swipe to the right begins beside the icon, where this picture is.
    swipe_.Create(174, 210, 172, 48);
    swipe_.SetImagePath(L"FilesSwipe.lqi");
    AddChild(&swipe_);

    view_.SetRootName(kMediumName);
    // Before it gets a window: the view places its middle label by where its icon is on the screen.
    view_.Create(kViewLeft, 60, kViewWidth, 410);
    // The callback gets no context.
    void (*const onRequest)(int) = [](int request) {
        if (instance_)
            instance_->OnRequest(request);
    };
    view_.LQ_FV_Register(reinterpret_cast<void*>(onRequest));
    AddChild(&view_);

    PlaceLabel(hint_, {150, 650, 342, 370}, 18, eText_HCenter, LabelColor::Grey);
    AddChild(&hint_);
}

void FilesScreen::SetShow(bool show) {
    CLQWindow::SetShow(show);
    if (show) {
        browser_.Refresh();
        ShowEntries();
        timer_.StartTimer();
    } else {
        timer_.StopTimer();
    }
}

void FilesScreen::ChangeLanguage() {
    CLQWindow::ChangeLanguage();
    if (HasEntries())
        ShowEntries();
}

void FilesScreen::PlugIn(bool isPlugged) {
    if (isPlugged == isPlugged_)
        return;
    isPlugged_ = isPlugged;
    if (isPlugged)
        browser_.GoToRoot();
    ShowEntries();
}

bool FilesScreen::LeaveFolder() {
    if (!HasEntries() || !browser_.Leave())
        return false;
    ShowEntries();
    return true;
}

void FilesScreen::ShowEntries() {
    ShowFolder();
    if (!HasEntries()) {
        ShowNothing();
        return;
    }
    // Both arrows show, unless there is nowhere to go: the view takes a swipe one way only while the arrow of
    // the other way shows.
    const bool isAlone = browser_.EntryCount() == 1;
    const std::wstring above = isAlone ? L"" : Label(-1);
    const std::wstring below = isAlone ? L"" : Label(1);
    view_.ChangImage(above.c_str(), below.c_str(), Label(0).c_str(), false);
    swipe_.SetShow(LeadsSomewhere());
    ShowHint();
}

void FilesScreen::ShowNothing() {
    view_.ChangImage(L"", L"", L"", false);
    swipe_.SetShow(false);
    hint_.SetLangID(isPlugged_ && browser_.HasMedium() ? kCaptionFolderEmpty : kCaptionNoMedium);
}

void FilesScreen::ShowFolder() {
    const bool showsName = HasEntries();
    folder_.SetShow(showsName);
    number_.SetShow(showsName);
    if (!showsName)
        return;
    folder_.SetText(browser_.IsAtRoot() ? kMediumName : browser_.FolderName().c_str());
    const std::vector<FolderEntry>& contents = browser_.Contents();
    std::wstring number = std::to_wstring(contents.size());
    if (const FolderEntry* const entry = browser_.EntryAt(0))
        number = std::to_wstring(entry - contents.data() + 1) + L"/" + number;
    number_.SetText(number.c_str());
}

void FilesScreen::ShowHint() {
    const FolderEntry* const entry = browser_.EntryAt(0);
    if (browser_.Contents().empty())
        hint_.SetLangID(kCaptionFolderEmpty);
    else if (!entry || entry->isFolder)
        hint_.SetLangID(kCaptionSwipeToOpen);
    else if (IsMusic(*entry))
        hint_.SetLangID(kCaptionSwipeToPlay);
    else {
        hint_.SetLangID(0);
        hint_.SetText(SizeText(entry->bytes).c_str());
    }
}

std::wstring FilesScreen::Label(int offset) const {
    if (const FolderEntry* const entry = browser_.EntryAt(offset))
        return FittedName(entry->name, offset == 0 ? kLargeText : kSmallText, kLabelWidth);
    const std::wstring caption = CLQLangManager::GetInstance()->GetString(kCaptionFolderAbove);
    return caption.empty() ? L".." : caption;
}

bool FilesScreen::LeadsSomewhere() const {
    const FolderEntry* const entry = browser_.EntryAt(0);
    return !entry || entry->isFolder || IsMusic(*entry);
}

void FilesScreen::OnRequest(int request) {
    if (!IsFolderAsShown()) {
        browser_.Refresh();
        ShowEntries();
        if (onGone_)
            onGone_();
        return;
    }
    switch (request) {
        case CLQFileView::kRequestUp:
            browser_.Step(-1);
            ShowEntries();
            break;
        case CLQFileView::kRequestDown:
            browser_.Step(1);
            ShowEntries();
            break;
        case CLQFileView::kRequestOpen:
            Open();
            break;
        default:
            break;
    }
}

void FilesScreen::Open() {
    switch (browser_.Open()) {
        case FolderBrowser::Opened::Folder:
            ShowEntries();
            break;
        case FolderBrowser::Opened::File:
            PlayMusic(*browser_.EntryAt(0));
            break;
        case FolderBrowser::Opened::Nothing:
            ShowEntries();
            if (onGone_)
                onGone_();
            break;
    }
}

void FilesScreen::PlayMusic(const FolderEntry& first) {
    if (!IsMusic(first) || !onMusic_)
        return;
    const std::vector<FolderEntry>& contents = browser_.Contents();
    const auto before = std::count_if(contents.data(), &first, IsMusic);
    onMusic_(MusicIn(contents), static_cast<std::size_t>(before));
}

void FilesScreen::OnTick(void*, int) {
    if (IsFolderAsShown())
        return;
    browser_.Refresh();
    ShowEntries();
}

}  // namespace korvane::demo
