#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "engine/core/Types.h"
#include "engine/draw/Surface.h"
#include "engine/system/Timer.h"
#include "engine/window/BaseCtrl.h"
#include "platform/Export.h"

class CLQTextElement;

/// A tile of a menu: a picture, still or a sequence of images that plays in a loop, under a frame, a caption
/// and a marker of the playing source.
///
/// A press inside fires korvane::kEventPressed. Its release, wherever the finger is by then, posts the
/// command 273 with the tile's address and 514 to the screen's window. A press that lasts for the long-press
/// time fires korvane::kEventLongPress if somebody registered for it; its release posts the command all the
/// same, and `HasResponseLongPress` tells the two apart. The keys reach a tile once `EnableFocus` allows it.
///
/// Positions are pixels from the tile's top-left corner. Copies share the loaded images, the timers and the
/// text element; the last of them frees what they share. The ticks that play the sequence go on to the tile
/// that was copied, and one long press is timed at a time. Handlers may delete the tile.
class KORVANEEX_API CLQMenuItemCtrl : public CLQBaseCtrl {
  public:
    CLQMenuItemCtrl();
    CLQMenuItemCtrl(const CLQMenuItemCtrl& other);
    CLQMenuItemCtrl& operator=(const CLQMenuItemCtrl& other);
    ~CLQMenuItemCtrl() override;

    bool DoMessage(_LQMessage* msg) override;
    void Draw(CLQSurfHandle& target) override;
    void ChangeLanguage() override;
    void OnLostFocus() override;

    /// Takes over a sequence of `count` images of that size in pixels, each shown for `period` milliseconds,
    /// in place of an earlier one. It plays on if the timer runs; this neither starts nor stops it. A count
    /// below 1 leaves nothing to show.
    ///
    /// The pattern gives the images' file names, see korvane::FormatFrameName: its first integer is the
    /// frame's number counted from 1, its second the one counted from 0. Each image is loaded when it is
    /// first shown; one that cannot be loaded shows nothing and is not tried again until `ReleaseImageSurf`.
    void SetImage(const wchar_t* pattern, int count, int width, int height, int period);
    /// The place of the picture, of the veil and of the pressed shade.
    void SetImagePos(int x, int y);
    void GetImageShowSize(int& width, int& height);
    /// A still picture in place of the sequence, which pauses; it shares the surface. An empty handle lets
    /// the sequence play on.
    void SetThumbNail(CLQSurfHandle& thumbNail);
    /// False stops the sequence at its current image.
    void EnableImagePlay(bool enable);
    /// Frees the loaded images of the sequence, which starts anew; those that show again are loaded again.
    void ReleaseImageSurf();

    /// A piece of the frame and its place. Pieces 0 to 3 show while the tile has the focus in cursor mode,
    /// pieces 4 to 7 otherwise; any other piece changes nothing. This and the setters of images below ask for
    /// no repaint. Files are read anew.
    void SetBorderSurf(CLQSurfHandle& image, int x, int y, eBorderDirection direction);
    void SetBorderSurf(const wchar_t* file, int x, int y, eBorderDirection direction);
    /// Lies over the picture while the tile is pressed.
    void SetPressedShaderSurf(CLQSurfHandle& image);
    void SetPressedShaderSurf(const wchar_t* file);
    /// The caption as a picture, normal and disabled, and what lies behind it. All three, like the marker of
    /// the playing source, are centred on the point of `SetTextPos`.
    void SetTextSurf(const wchar_t* file);
    void SetDesableTextSurf(const wchar_t* file);
    void SetTextShaderSurf(const wchar_t* file);
    void SetTextPos(int x, int y);
    /// The caption as text, in place of the pictures; the tile owns it and deletes an earlier one. An element
    /// bound to another tile becomes one of both. Null: none. An element that has another father without
    /// being bound to it stays there, and nothing changes.
    void BindTextElement(CLQTextElement* element);

    /// A veil over the picture, shown while it is enabled.
    void SetRectAshSurf(const wchar_t* file);
    void EnableRectAshSurf(bool enable);
    /// The disabled look. The tile takes touches all the same.
    void EnableDesableState(bool disable);
    bool IsDesableState();
    /// The marker of the playing source, not shown on a disabled tile.
    void SetCurSourceSurf(const wchar_t* file);
    void EnableCurSource(bool enable);

    /// In milliseconds, 2000 at first; below 1 counts as 1. A long press that is being timed starts anew.
    void SetLongPressTime(int ms);
    /// True when the last press became a long press.
    bool HasResponseLongPress();

    /// Ticks of the timers. Both arguments are ignored.
    void OnLongPressTimer(void*, int);
    void OnRefreshTimer(void*, int);

  protected:
    struct BorderPiece {
        CLQSurfHandle image;
        int x = 0;
        int y = 0;
    };
    static constexpr int kBorderPieces = 8;

    std::array<BorderPiece, kBorderPieces> m_arrBorder;
    CLQSurfHandle m_surfPressedShader;
    int m_nTextX = 0;
    int m_nTextY = 0;
    CLQSurfHandle m_surfTextShader;
    CLQSurfHandle m_surfText;
    CLQSurfHandle m_surfDesableText;
    /// As many as were shown so far; null: not loaded. One that cannot be loaded is an empty handle.
    std::vector<std::shared_ptr<CLQSurfHandle>> m_vecFrame;
    int m_nFrameCount = 0;
    int m_nShowWidth = 0;
    int m_nShowHeight = 0;
    int m_nFrame = 0;
    std::wstring m_strFramePattern;
    bool m_bPlaying = true;
    int m_nImageX = 0;
    int m_nImageY = 0;
    bool m_bImagePlay = true;
    CLQSurfHandle m_surfThumbNail;
    CLQSurfHandle m_surfRectAsh;
    bool m_bRectAsh = false;
    bool m_bDesable = false;
    bool m_bCurSource = false;
    CLQSurfHandle m_surfCurSource;
    CLQTimer m_timerRefresh;
    bool m_bLongPressAnswered = false;
    std::shared_ptr<CLQTimer> m_pLongPressTimer;
    int m_nLongPressTime = 2000;
    std::shared_ptr<CLQTextElement> m_pTextElement;

  private:
    bool HasThumbNail() { return m_surfThumbNail.GetSurface() != nullptr; }
    bool HasLongPressHandler() const;
    bool DoPress(const _LQMessage& msg);
    void DoRelease();
    void StartLongPress();
    void StopLongPress();

    CLQSurfHandle& CurrentFrame();
    void DrawPicture(CLQSurfHandle& target, int x, int y);
    void DrawBorder(CLQSurfHandle& target, int x, int y);
    void DrawCaption(CLQSurfHandle& target, int x, int y);
    void DrawCentred(CLQSurfHandle& target, CLQSurfHandle& image, int x, int y);
    void DrawVeil(CLQSurfHandle& target, int x, int y);
};
