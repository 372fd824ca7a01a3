#pragma once

#include "engine/widgets/layout/LayoutArchive.h"
#include "engine/widgets/layout/MemBlob.h"

namespace korvane {

/// One record of a blob.
class BlobArchive : public LayoutArchive {
  public:
    BlobArchive(CLQMemBlob& blob, int index, bool loading);

  protected:
    bool ReadNumber(const std::wstring& key, int& value) override;
    bool ReadText(const std::wstring& key, std::wstring& value) override;
    bool ReadColor(const std::wstring& key, _LQColor& value) override;
    bool WriteNumber(const std::wstring& key, int value) override;
    bool WriteText(const std::wstring& key, const std::wstring& value) override;
    bool WriteColor(const std::wstring& key, const _LQColor& value) override;

  private:
    CLQMemBlob& blob_;
    int index_;
};

}  // namespace korvane
