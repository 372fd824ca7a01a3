#pragma once

#include "KorvaneEx.h"

#include "demo/headunit/RadioScreen.h"
#include "demo/headunit/SourceScreen.h"
#include "demo/headunit/TitleStrip.h"

namespace korvane::demo {

struct Source;

/// The head unit: a screen for what plays, and the title strip over it. Which source plays, in which zone and
/// in which language it speaks, it reads from the system record; what the user chooses it asks of the main
/// application, which writes the record.
class HeadUnit {
  public:
    static constexpr int kWidth = 800;
    static constexpr int kHeight = 480;

    HeadUnit();
    HeadUnit(const HeadUnit&) = delete;
    HeadUnit& operator=(const HeadUnit&) = delete;
    ~HeadUnit();

    /// Builds everything with its top-left corner at (x, y) of the screen.
    void Create(int x, int y);

  private:
    void OnSystemChanged(int item);
    void OnBack();

    void ShowPhone();
    void ShowLanguage();
    void ShowZone();
    void ShowSource();

    CLQShareMemLink link_;
    const _LQSysInfo* record_ = nullptr;
    const Source* current_ = nullptr;
    bool hasPhone_ = false;

    RadioScreen radio_;
    SourceScreen other_;
    TitleStrip strip_;
};

}  // namespace korvane::demo
