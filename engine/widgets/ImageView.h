#pragma once

#include "engine/widgets/elements/NamedImage.h"
#include "engine/window/BaseCtrl.h"

/// Shows one image, at its top-left corner and in the image's own size.
class KORVANE_API CLQImageView : public CLQBaseCtrl {
  public:
    CLQImageView();
    CLQImageView(const CLQImageView& other);
    CLQImageView& operator=(const CLQImageView& other);
    ~CLQImageView() override;

    void Draw(CLQSurfHandle& target) override;
    CLQBaseCtrl* Clone() override;
    bool LoadCtrlFromIni(CLQIniReadWrite& ini, const wchar_t* section) override;
    bool LoadCtrlFromBin(CLQMemBlob& blob, int index) override;
    bool SaveCtrlToIni(CLQIniReadWrite& ini, const wchar_t* section) override;
    bool SaveCtrlToBin(CLQMemBlob& blob, int index) override;

    /// An empty or null name or an empty handle removes the image.
    void SetImagePath(const wchar_t* file);
    void SetImageSurf(CLQSurfHandle& image);

  protected:
    void ExchangeLayout(korvane::LayoutArchive& archive);

  private:
    korvane::NamedImage m_image;
};
