#include "controls/FileView.h"

#include <cstdint>
#include <memory>
#include <new>

#include "controls/parts/FileViewLayout.h"
#include "engine/core/Message.h"
#include "engine/text/FontManager.h"
#include "engine/widgets/elements/ImageElement.h"
#include "engine/window/Window.h"

namespace file_view = korvane::file_view;

namespace {

constexpr wchar_t kRootImage[] = L"FileViewTop.lqi";
constexpr wchar_t kFolderImage[] = L"fileviewfolder.lqi";
constexpr int kSmallText = 16;
constexpr int kLargeText = 22;

template <class Ctrl>
Ctrl* NewChild(CLQGroupCtrl& group) {
    std::unique_ptr<Ctrl> child(new (std::nothrow) Ctrl);
    group.AddChild(child.get());
    return child.release();
}

bool Place(CLQBaseCtrl& ctrl, const file_view::Box& box) {
    return ctrl.Create(box.x, box.y, box.width, box.height);
}

/// On the screen; empty for no control.
file_view::Box PlaceOf(CLQBaseCtrl* ctrl) {
    file_view::Box box;
    if (ctrl) {
        ctrl->GetScreenXY(box.x, box.y);
        ctrl->GetSize(box.width, box.height);
    }
    return box;
}

void Show(CLQBaseCtrl* ctrl, bool show) {
    if (ctrl)
        ctrl->SetShow(show);
}

void IgnoreInput(CLQBaseCtrl* ctrl) {
    if (ctrl)
        ctrl->EnableRecvMsg(false);
}

void SetText(CLQStatic* label, const std::wstring& text) {
    if (label)
        label->SetText(text.c_str());
}

void SetImage(CLQImageView* view, const wchar_t* file) {
    if (view)
        view->SetImagePath(file);
}

std::wstring TextOrEmpty(const wchar_t* text) {
    return text ? text : L"";
}

void PlaceLabel(CLQStatic* label, const file_view::Box& box, int fontSize) {
    if (!label)
        return;
    Place(*label, box);
    label->SetFont(CLQFontManager::GetInstance()->GetFont(L"msyh"));
    label->SetFontSize(fontSize, fontSize);
    _LQColor blue = {33, 140, 217, 255};
    label->SetTextColor(blue);
    label->SetTextStyle(eText_HCenter | eText_VCenter);
    label->EnableTextScroll(true);
    label->SetScrollType(eScroll_Left);
    label->SetScrollParam(4, 150);
    label->EnableScrollTextTooLong(true);
    label->SetTextScrollNum(1);
}

void PlaceArrow(CLQButton* arrow, const file_view::Box& box, const wchar_t* file) {
    if (!arrow)
        return;
    Place(*arrow, box);
    auto image = std::make_unique<CLQImageElement>();
    image->SetImage(eImage_Normal, file);
    if (arrow->AddGUIElement(image.get()))
        static_cast<void>(image.release());  // the button's from here on
}

void ShowNeighbour(CLQButton* arrow, CLQStatic* label, const std::wstring& text) {
    Show(arrow, !text.empty());
    SetText(label, text);
}

bool IsShown(CLQButton* arrow) {
    return arrow && arrow->IsOwnerShow();
}

}  // namespace

unsigned char CLQFileView::s_byBandTouched = 0;

CLQFileView::CLQFileView() : m_strRootName(L"MY USB") {
    m_pImageIcon = NewChild<CLQImageView>(*this);
    m_pStTop = NewChild<CLQStatic>(*this);
    m_pStCentre = NewChild<CLQStatic>(*this);
    m_pStBottom = NewChild<CLQStatic>(*this);
    m_pBtnUp = NewChild<CLQButton>(*this);
    m_pBtnDown = NewChild<CLQButton>(*this);
}

CLQFileView::CLQFileView(const CLQFileView& other) = default;

CLQFileView& CLQFileView::operator=(const CLQFileView& other) = default;

CLQFileView::~CLQFileView() = default;

bool CLQFileView::Create(int x, int y, int width, int height) {
    const bool placed = CLQBaseCtrl::Create(x, y, width, height);
    const file_view::Box view = {x, y, width, height};

    if (m_pImageIcon) {
        Place(*m_pImageIcon, file_view::IconBox(view));
        m_pImageIcon->SetImagePath(kRootImage);
    }
    // The icon's place is that on the screen, also where the label's is one in the window.
    const file_view::Box icon = PlaceOf(m_pImageIcon);
    PlaceLabel(m_pStTop, file_view::LabelBox(view, file_view::kTopLabelY, 25), kSmallText);
    PlaceLabel(m_pStCentre, file_view::LabelBox(view, icon.y + icon.height + 5, 32), kLargeText);
    SetText(m_pStCentre, m_strRootName);
    PlaceLabel(m_pStBottom, file_view::LabelBox(view, file_view::kBottomLabelY, 25), kSmallText);
    PlaceArrow(m_pBtnUp, file_view::UpArrowBox(view), L"FileViewUp.lqi");
    PlaceArrow(m_pBtnDown, file_view::DownArrowBox(view), L"FileViewDown.lqi");

    Show(m_pBtnDown, false);
    Show(m_pBtnUp, false);
    IgnoreInput(m_pImageIcon);
    IgnoreInput(m_pStTop);
    IgnoreInput(m_pStCentre);
    IgnoreInput(m_pStBottom);
    return placed;
}

void CLQFileView::SetRootName(const wchar_t* name) {
    if (!name)
        return;
    m_strRootName = name;
    if (m_bRootMode)
        SetText(m_pStCentre, m_strRootName);
}

bool CLQFileView::LQ_FV_Register(void* callback) {
    m_pfnRequest = reinterpret_cast<RequestCallBack>(callback);
    return m_pfnRequest != nullptr;
}

void CLQFileView::EnableLabelScroll(bool enable) {
    for (CLQStatic* label : {m_pStBottom.Get(), m_pStTop.Get(), m_pStCentre.Get()}) {
        if (label)
            label->EnableTextScroll(enable);
    }
}

void CLQFileView::ChangImage(const wchar_t* upText, const wchar_t* downText, const wchar_t* centreText,
                             bool noScroll) {
    // Copies, since a name may be the text of one of the labels.
    const std::wstring up = TextOrEmpty(upText);
    const std::wstring down = TextOrEmpty(downText);
    const std::wstring centre = TextOrEmpty(centreText);
    m_bNoScroll = noScroll;
    if (up.empty() && down.empty() && centre.empty()) {
        if (!m_bRootMode)
            OnUpdateFileViewCtrl(true);
        return;
    }
    if (m_bRootMode)
        OnUpdateFileViewCtrl(false);

    Show(m_pStBottom, true);
    Show(m_pStTop, true);
    SetImage(m_pImageIcon, kFolderImage);
    Show(m_pImageIcon, true);
    // Off again below, so that no name of an entry scrolls.
    EnableLabelScroll(!m_bNoScroll);
    ShowNeighbour(m_pBtnUp, m_pStTop, up);
    ShowNeighbour(m_pBtnDown, m_pStBottom, down);
    Show(m_pStCentre, !centre.empty());
    SetText(m_pStCentre, centre);
    EnableLabelScroll(false);
    m_bContentSet = true;
}

void CLQFileView::OnUpdateFileViewCtrl(bool rootMode) {
    m_bRootMode = rootMode;
    if (!rootMode)
        return;
    SetImage(m_pImageIcon, kRootImage);
    Show(m_pImageIcon, true);
    Show(m_pBtnDown, false);
    Show(m_pStBottom, false);
    Show(m_pBtnUp, false);
    Show(m_pStTop, false);
    if (m_pStCentre) {
        m_pStCentre->EnableTextScroll(false);
        m_pStCentre->SetText(m_strRootName.c_str());
        m_pStCentre->EnableTextScroll(true);
        m_pStCentre->SetShow(true);
    }
}

bool CLQFileView::DoMessage(_LQMessage* msg) {
    if (!msg || m_bRootMode)
        return false;
    switch (msg->code) {
        case korvane::kMsgPress:
            return DoPress(*msg);
        case korvane::kMsgRelease:
            return DoRelease(*msg);
        default:
            return false;
    }
}

bool CLQFileView::DoPress(const _LQMessage& msg) {
    if (!CheckPoint(msg.x, msg.y))
        return false;
    // Taken before the callback, which may show other entries.
    const file_view::Places at = {PlaceOf(this),       PlaceOf(m_pImageIcon), PlaceOf(m_pBtnUp),
                                  PlaceOf(m_pBtnDown), PlaceOf(m_pStTop),     PlaceOf(m_pStBottom)};
    if (file_view::IsInOpenBand(at, msg.x, msg.y)) {
        m_nPressX = msg.x;
        m_nPressY = msg.y;
        m_bOpenArmed = true;
    }
    if (file_view::IsInUpperBand(at, msg.x, msg.y)) {
        s_byBandTouched = 1;
        m_nPressY = msg.y;
        m_bSwipeUpArmed = true;
    }
    if (file_view::IsInLowerBand(at, msg.x, msg.y)) {
        s_byBandTouched = 1;
        m_nPressY = msg.y;
        m_bSwipeDownArmed = true;
    }
    // The two arrows clear different flags, which is meant.
    if (file_view::IsOnUpArrow(at, msg.x, msg.y)) {
        m_bNoScroll = false;
        if (IsShown(m_pBtnUp) && !SendRequest(kRequestUp))
            return true;
    }
    if (file_view::IsOnDownArrow(at, msg.x, msg.y)) {
        m_bSwipeDownArmed = false;
        if (IsShown(m_pBtnDown) && !SendRequest(kRequestDown))
            return true;
    }
    TakeInput();
    return true;
}

/// The release is to come here also when it happens outside the view. The hooks of a change of focus may
/// destroy the view.
void CLQFileView::TakeInput() {
    if (!m_pOwnerWnd)
        return;
    const korvane::LifeWatch self = WatchLife();
    m_pOwnerWnd->SetFocusCtrl(this);
    if (self.IsAlive() && m_pOwnerWnd)
        m_pOwnerWnd->SetRecvMsgCtrl(this);
}

/// A release that completes no gesture leaves armed what was armed.
bool CLQFileView::DoRelease(const _LQMessage& msg) {
    const std::int64_t right = std::int64_t{msg.x} - m_nPressX;
    const std::int64_t down = std::int64_t{msg.y} - m_nPressY;
    if (m_bOpenArmed && file_view::IsSwipeRight(right, down)) {
        m_bOpenArmed = false;
        m_bNoScroll = true;
        SendRequest(kRequestOpen);
        return true;
    }
    // A swipe asks for the entry on the side that it comes from, but only if there is one on the side that it
    // goes to: crossed, and meant.
    if (m_bSwipeDownArmed && down > file_view::kSwipeLength) {
        m_bSwipeDownArmed = false;
        m_bNoScroll = false;
        if (IsShown(m_pBtnDown))
            SendRequest(kRequestUp);
        return true;
    }
    if (m_bSwipeUpArmed && -down > file_view::kSwipeLength) {
        m_bNoScroll = false;
        m_bSwipeUpArmed = false;
        if (IsShown(m_pBtnUp))
            SendRequest(kRequestDown);
        return true;
    }
    return false;
}

bool CLQFileView::SendRequest(Request request) {
    if (!m_pfnRequest)
        return true;
    const korvane::LifeWatch self = WatchLife();
    m_pfnRequest(request);
    return self.IsAlive();
}

void CLQFileView::OnBtnUp(void* button) {
    if (!button)
        return;
    if (button == m_pBtnUp.Get())
        SendRequest(kRequestUp);
    else if (button == m_pBtnDown.Get())
        SendRequest(kRequestDown);
}

void CLQFileView::Draw(CLQSurfHandle& target) {
    CLQGroupCtrl::Draw(target);
}
