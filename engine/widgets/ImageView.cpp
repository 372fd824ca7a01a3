#include "engine/widgets/ImageView.h"

#include "engine/widgets/layout/CtrlStorage.h"

CLQImageView::CLQImageView() {
    m_nKind = korvane::kKindImageView;
}

CLQImageView::CLQImageView(const CLQImageView& other) = default;

CLQImageView& CLQImageView::operator=(const CLQImageView& other) = default;

CLQImageView::~CLQImageView() = default;

CLQBaseCtrl* CLQImageView::Clone() {
    return new CLQImageView(*this);
}

void CLQImageView::SetImagePath(const wchar_t* file) {
    if (m_image.SetFile(file))
        Invalidate();
}

void CLQImageView::SetImageSurf(CLQSurfHandle& image) {
    m_image.SetSurface(image);
    Invalidate();
}

void CLQImageView::Draw(CLQSurfHandle& target) {
    if (m_pOwnerWnd && !IsNeedRedraw())
        return;
    int x = 0;
    int y = 0;
    GetScreenXY(x, y);
    target.BitBlt(m_image.Surface(), x, y, m_nWidth, m_nHeight, 0, 0);
    if (m_pOwnerWnd)
        Redraw(false);
}

void CLQImageView::ExchangeLayout(korvane::LayoutArchive& archive) {
    CLQBaseCtrl::ExchangeLayout(archive);
    archive.Text(L"image", m_image.File(), [this](const std::wstring& file) { SetImagePath(file.c_str()); });
}

bool CLQImageView::LoadCtrlFromIni(CLQIniReadWrite& ini, const wchar_t* section) {
    return korvane::LoadFromIni(ini, section, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}

bool CLQImageView::LoadCtrlFromBin(CLQMemBlob& blob, int index) {
    return korvane::LoadFromBlob(blob, index, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}

bool CLQImageView::SaveCtrlToIni(CLQIniReadWrite& ini, const wchar_t* section) {
    return korvane::SaveToIni(ini, section, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}

bool CLQImageView::SaveCtrlToBin(CLQMemBlob& blob, int index) {
    return korvane::SaveToBlob(blob, index, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}
