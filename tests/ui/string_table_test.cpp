// The string tables, and texts made ready for widgets.
#include "app/string_table.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTranslator>
#include <algorithm>
#include <gmock/gmock.h>
#include <map>
#include <set>

#include "app/plain_text.h"

namespace {

std::set<std::string> known_keys() {
    std::set<std::string> keys;
    for (const auto part : {designed_keys(), window_keys()}) {
        keys.insert(part.begin(), part.end());
    }
    return keys;
}

// The ids of a translation source.
std::set<std::string> keys_of_source(const QString& language) {
    QFile file(QStringLiteral(KESTREL_TRANSLATIONS "/kestrelraid_%1.ts").arg(language));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << language.toStdString();
    const QString text = QString::fromUtf8(file.readAll());
    EXPECT_FALSE(text.contains(QLatin1String("type=\"unfinished\""))) << language.toStdString();
    static const QRegularExpression id(QStringLiteral("<message id=\"([^\"]+)\">"));
    std::set<std::string> keys;
    for (auto match = id.globalMatch(text); match.hasNext();) {
        keys.insert(match.next().captured(1).toStdString());
    }
    return keys;
}

class every_language : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override { ASSERT_TRUE(install_language(translator, QLatin1String(GetParam()))); }
    void TearDown() override { QCoreApplication::removeTranslator(&translator); }

    QTranslator translator;
};

TEST_P(every_language, HasATextForEveryKeyAndForNoOther) {
    EXPECT_EQ(keys_of_source(QLatin1String(GetParam())), known_keys());
    for (const std::string& key : known_keys()) {
        EXPECT_NE(translated(key), key) << GetParam();
        EXPECT_NE(translated(key), "") << GetParam() << " " << key;
    }
}

TEST_P(every_language, SuffixesStandOffFromTheWordBefore) {
    for (const char* suffix :
         {"broken", "degrade", "rebuild_source", "rebuild_target", "rebuilding"}) {
        const std::string text = translated(suffix);
        EXPECT_TRUE(text.front() == ' ' || text.rfind("（", 0) == 0) << text;
    }
}

// The places that values are filled in at, in their order.
std::string places_in(const std::string& text) {
    std::string places;
    for (std::size_t at = text.find('%'); at != std::string::npos; at = text.find('%', at + 1)) {
        places += text.substr(at, 2);
    }
    return places;
}

TEST_P(every_language, FillsInWhatEnglishDoes) {
    std::map<std::string, std::string> here;
    for (const std::string& key : known_keys()) {
        here[key] = places_in(translated(key));
    }
    QTranslator english;
    ASSERT_TRUE(install_language(english, QStringLiteral("en")));
    for (auto& [key, places] : here) {
        std::string wanted = places_in(translated(key));
        std::sort(places.begin(), places.end());
        std::sort(wanted.begin(), wanted.end());
        EXPECT_EQ(places, wanted) << key;
    }
}

// What is copied onto what is told in this order everywhere.
TEST_P(every_language, NamesTheSourceBeforeTheTarget) {
    EXPECT_EQ(places_in(translated("ui_state_copying")), "%1%2");
    EXPECT_LT(translated("disk1_to_disk2").find('1'), translated("disk1_to_disk2").find('2'));
    EXPECT_LT(translated("disk2_to_disk1").find('2'), translated("disk2_to_disk1").find('1'));
}

TEST_P(every_language, FillsTheTable) {
    string_table table;
    table.load(translated);
    EXPECT_EQ(table.text("raid_0"), "RAID 0");
    EXPECT_EQ(table.text("disk_1"), translated("disk_1"));
}

INSTANTIATE_TEST_SUITE_P(languages, every_language,
                         testing::Values("en", "de", "fr", "es", "it", "ja", "ko", "zh_CN",
                                         "zh_TW"));

TEST(string_tables, HoldFortyThreeDesignedKeys) {
    const std::set<std::string_view> once(designed_keys().begin(), designed_keys().end());
    EXPECT_EQ(once.size(), 43U);
    EXPECT_EQ(known_keys().size(), designed_keys().size() + window_keys().size());
}

TEST(string_tables, MissingTextYieldsItsKey) {
    const string_table empty;
    EXPECT_EQ(empty.text("raid_status"), "raid_status");
    EXPECT_EQ(translated("no_such_key"), "no_such_key");
}

TEST(string_tables, LanguageWithoutATableFallsBackToEnglish) {
    EXPECT_EQ(language_for({"nl-NL", "nl"}), QStringLiteral("en"));
    EXPECT_EQ(language_for({}), QStringLiteral("en"));
    QTranslator none;
    EXPECT_FALSE(install_language(none, QStringLiteral("nl")));
}

TEST(string_tables, FirstPreferredLanguageThatThereIsWins) {
    EXPECT_EQ(language_for({"nl-NL", "de-AT", "en-GB"}), QStringLiteral("de"));
    EXPECT_EQ(language_for({"en-US", "de-DE"}), QStringLiteral("en"));
}

TEST(string_tables, ChineseGoesByScriptOrTerritory) {
    for (const char* wish : {"zh", "zh-CN", "zh-Hans-CN", "zh-SG", "zh-Hans-HK"}) {
        EXPECT_EQ(language_for({wish}), QStringLiteral("zh_CN")) << wish;
    }
    for (const char* wish : {"zh-TW", "zh-Hant-TW", "zh-HK", "zh-MO", "zh-Hant"}) {
        EXPECT_EQ(language_for({wish}), QStringLiteral("zh_TW")) << wish;
    }
}

TEST(plain_text, ControlCharactersBecomeBlanks) {
    EXPECT_EQ(one_line("a\x01\t\n\x7F"
                       "b\xC2\x85"),
              QStringLiteral("a    b "));
    EXPECT_EQ(plain_lines("a\nb\tc"), QStringLiteral("a\nb c"));
}

TEST(plain_text, AmpersandsOfButtonsAreDoubled) {
    EXPECT_EQ(button_text("a&b"), QStringLiteral("a&&b"));
}

} // namespace
