#include <gtest/gtest.h>
#include <memory>

#include "engine/Korvane.h"

namespace {

class Source : public CLQBaseCtrl {
  public:
    bool Fire(int event) { return FireEvent(event); }
    bool FirePointer(int event, void* data) { return FireEvent(event, data); }
    bool FireIndex(int event, int index) { return FireEvent(event, index); }
};

class Listener : public CLQWindow {
  public:
    void OnSender(void* from) {
        ++calls;
        sender = from;
    }
    void OnValue(void* from, float* data) {
        ++calls;
        sender = from;
        value = *data;
    }
    void OnIndex(void* from, int data) {
        ++calls;
        sender = from;
        index = data;
    }
    void OnTypedSender(Source* from) { sender = from; }
    void OnTypedValue(Source*, float* data) { value = *data; }
    void OnTypedIndex(Source*, int data) { index = data; }
    void OnNothing() { ++calls; }
    void OnDelete(Source* from) { delete from; }

    int calls = 0;
    void* sender = nullptr;
    float value = 0;
    int index = -1;
};

using Untyped = void (CLQWnd::*)();

TEST(CallBackTable, CallsAHandlerThatWasCastToTheRegisteredType) {
    Source source;
    Listener listener;
    source.AddCallBack(514, &listener, (Untyped)&Listener::OnSender);
    source.AddCallBack(29706, &listener, (Untyped)&Listener::OnValue);
    source.AddCallBack(29953, &listener, (Untyped)&Listener::OnIndex);
    EXPECT_TRUE(source.Fire(514));
    EXPECT_EQ(listener.sender, static_cast<CLQBaseCtrl*>(&source));
    float value = 87.5F;
    source.FirePointer(29706, &value);
    EXPECT_EQ(listener.value, 87.5F);
    source.FireIndex(29953, 3);
    EXPECT_EQ(listener.index, 3);
    EXPECT_EQ(listener.calls, 3);
}

TEST(CallBackTable, CallsATypedHandlerWithoutACast) {
    Source source;
    Listener listener;
    source.AddCallBack(513, &listener, &Listener::OnTypedSender);
    source.AddCallBack(514, &listener, &Listener::OnNothing);
    source.AddCallBack(29706, &listener, &Listener::OnTypedValue);
    source.AddCallBack(29953, &listener, &Listener::OnTypedIndex);
    source.Fire(513);
    EXPECT_EQ(listener.sender, &source);
    source.Fire(514);
    EXPECT_EQ(listener.calls, 1);
    float value = 99.9F;
    source.FirePointer(29706, &value);
    EXPECT_EQ(listener.value, 99.9F);
    source.FireIndex(29953, 5);
    EXPECT_EQ(listener.index, 5);
}

TEST(CallBackTable, KeepsOneRecordForEachCode) {
    Source source;
    Listener first;
    Listener second;
    source.AddCallBack(514, &first, &Listener::OnNothing);
    source.AddCallBack(514, &second, &Listener::OnNothing);
    source.Fire(514);
    EXPECT_EQ(first.calls, 0);
    EXPECT_EQ(second.calls, 1);
}

TEST(CallBackTable, SkipsARecordWithoutTargetOrHandler) {
    Source source;
    Listener listener;
    source.AddCallBack(513, nullptr, (Untyped)&Listener::OnSender);
    source.AddCallBack(514, &listener, static_cast<Untyped>(nullptr));
    EXPECT_TRUE(source.Fire(513));
    EXPECT_TRUE(source.Fire(514));
    EXPECT_TRUE(source.Fire(515)) << "no record at all";
    EXPECT_EQ(listener.calls, 0);
}

TEST(CallBackTable, SkipsATargetThatNoLongerExists) {
    Source source;
    {
        Listener gone;
        source.AddCallBack(514, &gone, &Listener::OnNothing);
    }
    EXPECT_TRUE(source.Fire(514));
}

TEST(CallBackTable, TellsTheControlThatItsHandlerDestroyedIt) {
    auto* source = new Source;
    Listener listener;
    source->AddCallBack(514, &listener, &Listener::OnDelete);
    EXPECT_FALSE(source->Fire(514));
}

TEST(CallBackTable, IsCopiedWithTheControl) {
    Source source;
    Listener listener;
    source.AddCallBack(514, &listener, &Listener::OnSender);
    Source copy(source);
    copy.Fire(514);
    EXPECT_EQ(listener.sender, static_cast<CLQBaseCtrl*>(&copy));
}

}  // namespace
