#include <ostream>

#include "engine/Korvane.h"
#include "platform/Unicode.h"

#include "tests/title/bench/TestStrip.h"

namespace korvane::test {
namespace {

class TrafficText : public TestStrip {
  protected:
    using TestStrip::TestStrip;

    std::string Text() { return ToUtf8(Find<CLQStatic>(L"StTAText")->GetText()); }
};

struct LanguageCase {
    int language;
    const char* text;
};

std::ostream& operator<<(std::ostream& stream, const LanguageCase& language) {
    return stream << language.language;
}

const char kEnglish[] = "Traffic Information Received...";
const char kChinese[] = "接收到交通信息...";
const char kSpanish[] = "Información de tráfico recibida...";

class TrafficTextIn : public TrafficText, public testing::WithParamInterface<LanguageCase> {};

TEST_P(TrafficTextIn, IsThatOfTheLanguage) {
    // First from the beginning, then by a change from another one.
    Record().language = static_cast<unsigned char>(GetParam().language);
    Start();
    EXPECT_EQ(Text(), GetParam().text);
    Set(L"language", 6);
    EXPECT_EQ(Text(), "Informazioni sul traffico ricevute...");
    Set(L"language", GetParam().language);
    EXPECT_EQ(Text(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    AllIds, TrafficTextIn,
    testing::Values(LanguageCase{0, kEnglish}, LanguageCase{1, kChinese}, LanguageCase{2, kChinese},
                    LanguageCase{3, kEnglish}, LanguageCase{4, "Informations de trafic reçue..."},
                    LanguageCase{5, "Verkehrsinformationen empfangen"},
                    LanguageCase{6, "Informazioni sul traffico ricevute..."}, LanguageCase{7, kSpanish},
                    LanguageCase{8, "Verkeersinformatie ontvangen..."},
                    LanguageCase{9, "Trafikinformation mottagen..."},
                    LanguageCase{10, "Odebrano informacje o ruchu drogowym..."},
                    LanguageCase{11, "Λήψη πληροφοριών κυκλοφορίας..."}, LanguageCase{12, kEnglish},
                    LanguageCase{13, "Information de circulation reçue..."}, LanguageCase{14, kSpanish},
                    LanguageCase{15, kEnglish}, LanguageCase{16, "交通情報受信中..."},
                    LanguageCase{17, "Informação de Trafego Recebida..."}, LanguageCase{18, kEnglish},
                    LanguageCase{19, kEnglish}, LanguageCase{255, kEnglish}),
    [](const auto& language) { return std::to_string(language.param.language); });

TEST_F(TrafficText, IsSeenInPlaceOfTheTitleWhileAnAnnouncementPlays) {
    Start();
    dialog->SetTitleInfo(L"Station one", false, 0);
    auto* text = Find<CLQStatic>(L"StTAText");
    const auto title = PixelsOfCtrl(*text);
    EXPECT_FALSE(text->IsShow());
    Set(L"taActive", 1);
    EXPECT_TRUE(text->IsShow());
    EXPECT_NE(PixelsOfCtrl(*text), title);
    Set(L"taActive", 0);
    EXPECT_EQ(PixelsOfCtrl(*text), title);
}

TEST_F(TrafficText, ChangesWhileItIsSeen) {
    Start();
    Set(L"taActive", 1);
    auto* text = Find<CLQStatic>(L"StTAText");
    const auto english = PixelsOfCtrl(*text);
    Set(L"language", 5);
    EXPECT_NE(PixelsOfCtrl(*text), english);
}

TEST_F(TrafficText, WaitsForTheNewsOfTheLanguage) {
    Start();
    Record().language = 5;
    Notify(16);
    Notify(18);
    scene.Advance(10000);
    EXPECT_EQ(Text(), kEnglish);
    Notify(17);
    EXPECT_EQ(Text(), "Verkehrsinformationen empfangen");
}

TEST_F(TrafficText, IsNotOfTheLanguageTable) {
    TitleLayout layout;
    layout.properties["StInfo"] = "langid=7";
    WriteTitleLayout(layout);
    LoadTexts("7 = Radio\n");
    Start();
    EXPECT_EQ(Text(), kEnglish);
    LoadTexts("7 = Rundfunk\n");
    EXPECT_EQ(Text(), kEnglish);
    EXPECT_EQ(dialog->GetTitleInfo(), L"Rundfunk");
}

TEST_F(TrafficText, IsNotThereWithoutATitle) {
    TitleLayout layout;
    layout.without = {"StInfo"};
    WriteTitleLayout(layout);
    Start();
    EXPECT_EQ(Find(L"StTAText"), nullptr);
    Set(L"language", 5);
    Set(L"taActive", 1);
}

class TrafficTextWithoutService : public TrafficText {
  protected:
    TrafficTextWithoutService() : TrafficText(TestService::Missing) {}
};

TEST_F(TrafficTextWithoutService, IsEnglish) {
    Start();
    EXPECT_EQ(Text(), kEnglish);
}

class TrafficTextWithoutRecord : public TrafficText {
  protected:
    TrafficTextWithoutRecord() : TrafficText(TestService::WithoutRecord) {}
};

TEST_F(TrafficTextWithoutRecord, IsEnglish) {
    Start();
    EXPECT_EQ(Text(), kEnglish);
    Notify(17);
    EXPECT_EQ(Text(), kEnglish);
}

}  // namespace
}  // namespace korvane::test
