#pragma once

#include <string>

#include "engine/core/Types.h"

namespace korvane {

/// The properties of one control or element on their way into a layout or out of it. Whoever has properties
/// names each of them once: while storing, its current value is written; while loading, `set` is called with
/// the stored value, or not at all when the layout does not tell it.
class LayoutArchive {
  public:
    virtual ~LayoutArchive() = default;

    bool IsLoading() const { return loading_; }
    /// False once a property could not be written.
    bool IsComplete() const { return complete_; }
    /// Put before all keys; empty at first.
    void SetPrefix(const std::wstring& prefix) { prefix_ = prefix; }

    template <class Set>
    void Number(const wchar_t* key, int current, Set set) {
        int value = current;
        if (!loading_)
            Note(WriteNumber(prefix_ + key, value));
        else if (ReadNumber(prefix_ + key, value))
            set(value);
    }
    template <class Set>
    void Flag(const wchar_t* key, bool current, Set set) {
        Number(key, current ? 1 : 0, [&set](int value) { set(value != 0); });
    }
    template <class Set>
    void Text(const wchar_t* key, const std::wstring& current, Set set) {
        if (!loading_) {
            Note(WriteText(prefix_ + key, current));
            return;
        }
        std::wstring value;
        if (ReadText(prefix_ + key, value))
            set(value);
    }
    template <class Set>
    void Color(const wchar_t* key, const _LQColor& current, Set set) {
        _LQColor value = current;
        if (!loading_)
            Note(WriteColor(prefix_ + key, value));
        else if (ReadColor(prefix_ + key, value))
            set(value);
    }

  protected:
    explicit LayoutArchive(bool loading) : loading_(loading) {}

    /// The readers return false and leave the value alone when it is missing or of another type.
    virtual bool ReadNumber(const std::wstring& key, int& value) = 0;
    virtual bool ReadText(const std::wstring& key, std::wstring& value) = 0;
    virtual bool ReadColor(const std::wstring& key, _LQColor& value) = 0;
    virtual bool WriteNumber(const std::wstring& key, int value) = 0;
    virtual bool WriteText(const std::wstring& key, const std::wstring& value) = 0;
    virtual bool WriteColor(const std::wstring& key, const _LQColor& value) = 0;

    void Note(bool written) { complete_ = complete_ && written; }

  private:
    bool loading_;
    bool complete_ = true;
    std::wstring prefix_;
};

}  // namespace korvane
