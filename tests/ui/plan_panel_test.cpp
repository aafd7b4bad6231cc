// The panel that shows the plan of a change.
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTranslator>
#include <gmock/gmock.h>

#include "app/input_guard.h"
#include "app/panel.h"
#include "app/plain_text.h"
#include "app/string_table.h"
#include "app/use_text.h"

namespace {

using testing::Contains;

constexpr const char* question = "Copy Disk 1 onto Disk 2?";

plan_card first_card() {
    return {true, fate_tone::kept, "Disk 1", "MODEL A", "S/N 1", "2.00 TB", "is read", {}};
}

plan_card second_card() {
    return {true,    fate_tone::lost, "Disk 2",         "MODEL B",
            "S/N 2", "4.00 TB",       "is overwritten", {"Too small.", "Odd sectors."}};
}

plan_card empty_card() {
    return {false, fate_tone::calm, "Disk 2", "empty bay", "", "", "nothing is written", {}};
}

class plan_panel : public testing::Test {
protected:
    void SetUp() override {
        window.resize(800, 630);
        window.show();
    }

    // Opens the panel; `user` acts as soon as it is open, and it is dismissed if still unanswered.
    int open(const std::function<void()>& user) {
        QTimer visit;
        visit.setSingleShot(true);
        QObject::connect(&visit, &QTimer::timeout, &window, [this, &user] {
            user();
            if (shown() != nullptr) {
                dismiss_topmost_panel(guard);
            }
        });
        visit.start();
        return run_panel(&window, guard, request);
    }
    QWidget* shown() { return guard.topmost_panel(); }
    QWidget* part(const char* name) { return shown()->findChild<QWidget*>(QLatin1String(name)); }
    QList<QLabel*> labels() { return shown()->findChildren<QLabel*>(); }
    std::vector<std::string> texts() {
        std::vector<std::string> found;
        for (const QLabel* label : labels()) {
            found.push_back(label->text().toStdString());
        }
        return found;
    }
    QLabel* label(const QString& text) {
        for (QLabel* one : labels()) {
            if (one->text() == text) {
                return one;
            }
        }
        return nullptr;
    }
    QRect place(const QWidget* widget) {
        return {widget->mapTo(shown(), QPoint()), widget->size()};
    }
    void press(Qt::Key key) { QTest::keyClick(shown()->focusWidget(), key); }

    panel_request request{panel_kind::warning, "Warning", question, {"OK", "Cancel"}, {}};
    plan_view& view = request.plan.emplace(plan_view{"Copies Disk 1 onto Disk 2.",
                                                     "Duo (S/N: ABC)",
                                                     {first_card(), second_card()},
                                                     plan_arrow::to_disk2,
                                                     "overwrites"});
    QWidget window;
    input_guard guard;
};

TEST_F(plan_panel, ShowsEveryTextOfThePlan) {
    open([this] {
        for (const char* text :
             {question, "Copies Disk 1 onto Disk 2.", "Duo (S/N: ABC)", "overwrites", "Disk 1",
              "MODEL A", "S/N 1", "2.00 TB", "is read", "Disk 2", "MODEL B", "S/N 2", "4.00 TB",
              "is overwritten", "Too small.", "Odd sectors."}) {
            EXPECT_THAT(texts(), Contains(text));
        }
    });
}

TEST_F(plan_panel, HasTheFirstBayOnTheLeft) {
    view.arrow = plan_arrow::to_disk1;
    open([this] {
        const QRect first = place(part("plan_card_1"));
        const QRect second = place(part("plan_card_2"));
        EXPECT_LT(first.right(), second.left());
        EXPECT_TRUE(first.contains(place(label(QStringLiteral("MODEL A")))));
        EXPECT_TRUE(second.contains(place(label(QStringLiteral("MODEL B")))));
    });
}

TEST_F(plan_panel, ShowsAnEmptyBay) {
    view.cards[1] = empty_card();
    open([this] {
        EXPECT_THAT(texts(), Contains("empty bay"));
        EXPECT_THAT(texts(), Contains("nothing is written"));
        EXPECT_EQ(part("plan_card_2")->property("fate").toString(), QString());
    });
}

TEST_F(plan_panel, MarksWhatStaysAndWhatIsLost) {
    open([this] {
        EXPECT_EQ(part("plan_card_1")->property("fate").toString(), QStringLiteral("stays"));
        EXPECT_EQ(part("plan_card_2")->property("fate").toString(), QStringLiteral("lost"));
        EXPECT_EQ(label(QStringLiteral("is read"))->property("tone"), QStringLiteral("busy"));
        EXPECT_EQ(label(QStringLiteral("is overwritten"))->property("tone"), QStringLiteral("err"));
        EXPECT_EQ(label(QStringLiteral("Too small."))->property("tone"), QStringLiteral("warn"));
    });
}

// How many pixels of a column are painted.
int painted(const QImage& image, int x) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        count += image.pixelColor(x, y).red() > 0xC0 ? 1 : 0;
    }
    return count;
}

TEST_F(plan_panel, HasAnArrowWithItsTipAtTheDiskThatIsOverwritten) {
    constexpr int beside_tip = 10;
    open([this] {
        const QImage image = part("plan_arrow")->grab().toImage();
        EXPECT_GT(painted(image, image.width() - 1 - beside_tip), painted(image, beside_tip));
    });
    view.arrow = plan_arrow::to_disk1;
    open([this] {
        const QImage image = part("plan_arrow")->grab().toImage();
        EXPECT_LT(painted(image, image.width() - 1 - beside_tip), painted(image, beside_tip));
    });
}

TEST_F(plan_panel, HasNoArrowWithoutACopy) {
    view.arrow = plan_arrow::none;
    view.arrow_word.clear();
    open([this] { EXPECT_EQ(part("plan_arrow"), nullptr); });
}

TEST_F(plan_panel, ShowsHostileTextsAsTheyAre) {
    view.cards[0].model = "<img src=x>&lt;\n\x1B[0m";
    view.enclosure = "<b>Duo</b>\r\n";
    view.cards[0].fate = "<i>read</i>";
    open([this] {
        EXPECT_THAT(texts(), Contains("<img src=x>&lt;  [0m"));
        EXPECT_THAT(texts(), Contains("<b>Duo</b>  "));
        EXPECT_THAT(texts(), Contains("<i>read</i>"));
        for (const QLabel* one : labels()) {
            EXPECT_TRUE(one->text().isEmpty() || one->textFormat() == Qt::PlainText);
        }
    });
}

TEST_F(plan_panel, ShowsLinesBetweenTheMessageAndThePlan) {
    request.lines = {"sdb1 is mounted", "<b>sdb2</b>\n\x1B[0m"};
    open([this] {
        QLabel* first = label(QStringLiteral("sdb1 is mounted"));
        QLabel* second = label(QStringLiteral("<b>sdb2</b>  [0m"));
        ASSERT_TRUE(first != nullptr && second != nullptr);
        EXPECT_EQ(second->textFormat(), Qt::PlainText);
        EXPECT_GT(place(first).top(), place(label(QLatin1String(question))).bottom());
        EXPECT_GT(place(second).top(), place(first).bottom());
        EXPECT_LT(place(second).bottom(),
                  place(label(QStringLiteral("Copies Disk 1 onto Disk 2."))).top());
    });
}

TEST_F(plan_panel, HasOnlyItsClosingButtonWhenNothingIsAsked) {
    request.buttons = {"OK"};
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        EXPECT_EQ(open([this, key] {
                      EXPECT_EQ(part("panel_second_button"), nullptr);
                      EXPECT_EQ(part("panel_default_button")->property("kind").toString(),
                                QString());
                      press(key);
                  }),
                  panel_default);
    }
}

TEST_F(plan_panel, CutsLongNamesWithinTheirPlaceAndTellsThemInTheTip) {
    const QString wide = QStringLiteral("<b>") + QString(40, QLatin1Char('W'));
    view.cards[0].model = view.cards[1].serial = view.enclosure = wide.toStdString();
    open([this, wide] {
        int cut = 0;
        for (const QLabel* one : labels()) {
            if (one->text() == wide) {
                EXPECT_TRUE(one->toolTip().contains(wide.toHtmlEscaped()));
                ++cut;
            }
        }
        EXPECT_EQ(cut, 3);
        EXPECT_TRUE(place(part("plan_card_1")).contains(place(label(wide))));
        EXPECT_EQ(part("plan_card_1")->width(), 224);
        EXPECT_EQ(shown()->width(), 632);
    });
}

TEST_F(plan_panel, IsReadAsItsQuestionAndOneLinePerDisk) {
    open([this] {
        const auto heard = [this](const char* name) {
            return QAccessible::queryAccessibleInterface(part(name))->text(QAccessible::Name);
        };
        QAccessibleInterface* panel = QAccessible::queryAccessibleInterface(shown());
        EXPECT_EQ(panel->text(QAccessible::Description), QLatin1String(question));
        EXPECT_EQ(heard("plan_card_1"), one_line(as_line(view.cards[0])));
        EXPECT_EQ(heard("plan_card_2"),
                  QStringLiteral("Disk 2: MODEL B, S/N 2, 4.00 TB: is overwritten. "
                                 "Too small. Odd sectors."));
    });
}

TEST_F(plan_panel, IsReadWithItsLines) {
    request.lines = {"sdb1 is mounted", "sdb2 is\nswap"};
    open([this] {
        EXPECT_EQ(QAccessible::queryAccessibleInterface(shown())->text(QAccessible::Description),
                  QLatin1String(question) + QStringLiteral(" sdb1 is mounted; sdb2 is swap"));
    });
}

TEST_F(plan_panel, IsAnsweredAsAnyOther) {
    EXPECT_EQ(open([this] { press(Qt::Key_Return); }), panel_default);
    EXPECT_EQ(open([this] { press(Qt::Key_Escape); }), panel_second);
    EXPECT_EQ(open([this] { shown()->close(); }), panel_second);
}

TEST_F(plan_panel, TakesReturnOnCancelAsCancel) {
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(open([this] {
                  press(Qt::Key_Tab);
                  press(Qt::Key_Return);
              }),
              panel_second);
    EXPECT_EQ(open([this] {
                  press(Qt::Key_Tab);
                  press(Qt::Key_Tab);
                  press(Qt::Key_Return);
              }),
              panel_default);
}

TEST_F(plan_panel, GivesTheFocusToCancelThenToOk) {
    open([this] {
        press(Qt::Key_Tab);
        EXPECT_EQ(shown()->focusWidget(), part("panel_second_button"));
        press(Qt::Key_Tab);
        EXPECT_EQ(shown()->focusWidget(), part("panel_default_button"));
        press(Qt::Key_Tab);
        EXPECT_EQ(shown()->focusWidget(), part("panel_second_button"));
        EXPECT_LT(place(part("panel_second_button")).right(),
                  place(part("panel_default_button")).left());
    });
}

TEST_F(plan_panel, GrowsAboutItsCentre) {
    int usual = 0;
    open([&] { usual = shown()->height(); });
    view.cards[1].warnings.resize(6, "A warning that takes more than the width of one line.");
    open([&] {
        EXPECT_GT(shown()->height(), usual);
        const QPoint centre = shown()->mapTo(&window, shown()->rect().center());
        EXPECT_LE((centre - window.rect().center()).manhattanLength(), 2);
    });
}

// Every language, in the font of the look and in the widest of its fallbacks.
class plan_panel_at_its_fullest
    : public plan_panel,
      public testing::WithParamInterface<std::tuple<const char*, const char*>> {
protected:
    void SetUp() override {
        ASSERT_TRUE(install_language(translator, QLatin1String(std::get<0>(GetParam()))));
        usual_font = QApplication::font();
        QFont font = usual_font;
        font.setFamilies({QLatin1String(std::get<1>(GetParam()))});
        QApplication::setFont(font);
        plan_panel::SetUp();
        view = describe(fullest(), true, table());
        request.title = translated("warning");
        request.message = translated("disk2_to_disk1");
        request.buttons = {translated("ok"), translated("cancel")};
    }
    void TearDown() override {
        QApplication::setFont(usual_font);
        QCoreApplication::removeTranslator(&translator);
    }

    static string_table table() {
        string_table texts;
        texts.load(translated);
        return texts;
    }
    static change_plan fullest() {
        planned_disk disk;
        disk.present = true;
        disk.model = std::string(40, 'W');
        disk.serial = std::string(20, 'W');
        disk.capacity = ~std::uint64_t{0};
        disk.larger_than_used = disk.foreign_sectors = disk.record_inside_mirror = true;
        disk.missing_sectors = ~std::uint64_t{0};
        change_plan plan;
        plan.what = array_change::rebuild0to1;
        plan.enclosure = std::string(200, 'W');
        plan.disks = {disk, disk};
        plan.disks[0].fate = disk_fate::read;
        plan.disks[1].fate = disk_fate::overwritten;
        return plan;
    }
    QTranslator translator;
    QFont usual_font;
};

// Whether a label shows its whole text, or all of it in its tip.
bool whole(const QLabel& label) {
    const int flags = label.wordWrap() ? int{Qt::TextWordWrap} : int{Qt::TextSingleLine};
    const QRect area = label.contentsRect();
    const QRect needed = label.fontMetrics().boundingRect(area, flags, label.text());
    const bool high_enough = needed.height() <= area.height();
    return high_enough && (needed.width() <= area.width() || !label.toolTip().isEmpty());
}

TEST_P(plan_panel_at_its_fullest, StaysInTheWindow) {
    open([this] { EXPECT_TRUE(window.rect().contains(shown()->geometry())); });
}

TEST_P(plan_panel_at_its_fullest, CutsNothing) {
    open([this] {
        for (const QLabel* one : labels()) {
            EXPECT_TRUE(whole(*one)) << one->text().toStdString();
            EXPECT_TRUE(shown()->rect().contains(place(one))) << one->text().toStdString();
        }
        for (const char* name : {"panel_default_button", "panel_second_button"}) {
            EXPECT_GE(part(name)->width(), part(name)->sizeHint().width());
        }
    });
}

TEST_P(plan_panel_at_its_fullest, StaysInTheWindowAndCutsNothingWhenItRefuses) {
    std::vector<volume_use> uses(9, {volume_use_kind::mounted, "sdb1", std::string(4000, 'W')});
    uses[1].kind = volume_use_kind::swap;
    uses[2].kind = volume_use_kind::held;
    uses.push_back({volume_use_kind::unchecked, {}, {}});
    refuse_instead(request, uses, table());
    open([this] {
        EXPECT_TRUE(window.rect().contains(shown()->geometry()));
        for (const QLabel* one : labels()) {
            EXPECT_TRUE(whole(*one)) << one->text().toStdString();
            EXPECT_TRUE(shown()->rect().contains(place(one))) << one->text().toStdString();
        }
    });
}

TEST_P(plan_panel_at_its_fullest, LaysNothingOverAnother) {
    open([this] {
        QList<QWidget*> all = {part("panel_default_button"), part("panel_second_button")};
        for (QLabel* one : labels()) {
            all.append(one);
        }
        for (qsizetype i = 0; i < all.size(); ++i) {
            for (qsizetype k = 0; k < i; ++k) {
                EXPECT_FALSE(place(all[i]).intersects(place(all[k]))) << i << " " << k;
            }
        }
    });
}

INSTANTIATE_TEST_SUITE_P(languages, plan_panel_at_its_fullest,
                         testing::Combine(testing::Values("en", "de"),
                                          testing::Values("Inter", "DejaVu Sans")));

} // namespace
