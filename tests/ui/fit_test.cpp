// Nothing is cut and nothing overlaps, in any language. Run once for each scale.
#include "tests/ui/fit.h"

#include <QCoreApplication>
#include <QLabel>
#include <gmock/gmock.h>

#include "app/guide.h"
#include "app/krview.h"
#include "app/string_table.h"
#include "app/text_field.h"
#include "app/use_text.h"
#include "tests/ui/spoken_window.h"

namespace {

using testing::IsEmpty;

std::vector<std::string> lines_of(const QStringList& list) {
    std::vector<std::string> all;
    for (const QString& line : list) {
        all.push_back(line.toStdString());
    }
    return all;
}

std::vector<std::string> languages() {
    return lines_of(our_languages());
}

class every_text : public spoken_window, public testing::WithParamInterface<std::string> {
protected:
    void SetUp() override { open_in(QString::fromStdString(GetParam())); }

    // Measures the panel while it is open.
    std::vector<std::string> misfits_of_panel(const panel_request& request) {
        std::vector<std::string> found;
        visit_dialog([&](input_guard& guard) { run_panel(window->mainview, guard, request); },
                     [&](const QWidget& panel) { found = lines_of(misfits(panel)); });
        return found;
    }

    panel_request question(const char* message, array_change what, int mode) {
        const std::optional<chip_snapshot> current = j.current_chip();
        const change_plan plan =
            plan_change(what, mode, &current->chip, "Kestrel Duo (S/N: ABC123)", {});
        return {panel_kind::warning,
                translated("warning"),
                translated(message),
                {translated("ok"), translated("cancel")},
                describe(plan, true, texts)};
    }
};

TEST_P(every_text, FitsInEveryState) {
    for (const std::string& state : state_names()) {
        show_state(state);
        QCoreApplication::processEvents();
        EXPECT_THAT(lines_of(misfits(*window->mainview)), IsEmpty()) << state;
    }
}

TEST_P(every_text, FitsInEveryQuestion) {
    show_state("diverged");
    for (const array_change what : {array_change::rebuild0to1, array_change::rebuild1to0}) {
        EXPECT_THAT(misfits_of_panel(question("disk1_to_disk2", what, 0)), IsEmpty());
    }
    for (const array_change what : {array_change::clear_array, array_change::clear_disk0}) {
        EXPECT_THAT(misfits_of_panel(question("all_data_lost", what, 0)), IsEmpty());
    }
    for (const int mode : {mode_raid0, mode_raid1, mode_span}) {
        EXPECT_THAT(misfits_of_panel(question("all_data_lost", array_change::create, mode)),
                    IsEmpty());
    }
}

// As full as it gets, but for names of any length, which are cut.
TEST_P(every_text, FitsInEveryRefusal) {
    show_state("diverged");
    std::vector<volume_use> uses = {{volume_use_kind::mounted, "sdb1", "/media/anna/Photos"},
                                    {volume_use_kind::swap, "sdb2", {}},
                                    {volume_use_kind::open, "sdb4", "btrfs"},
                                    {volume_use_kind::held, "sdb3", "luks-2f1c8a44"}};
    uses.resize(1000, uses.back());
    uses.push_back({volume_use_kind::unchecked, {}, {}});
    for (const std::vector<volume_use>& some : {uses, {uses.back()}}) {
        panel_request request = question("disk1_to_disk2", array_change::rebuild0to1, 0);
        refuse_instead(request, some, texts);
        EXPECT_THAT(misfits_of_panel(request), IsEmpty());
        request.plan.reset();
        EXPECT_THAT(misfits_of_panel(request), IsEmpty());
    }
}

TEST_P(every_text, FitsInEveryMessage) {
    for (const char* message :
         {"raid1_degrade_mode", "raid_info_conflict", "two_raid1_disks_for_rebuild",
          "raid_create_error", "raid_delete_error", "raid_info_delete_error", "rebuild_error",
          "rebuild_finished", "hot_swap", "error_open_device"}) {
        EXPECT_THAT(misfits_of_panel({panel_kind::attention,
                                      translated("attention"),
                                      translated(message),
                                      {translated("ok")},
                                      {}}),
                    IsEmpty())
            << message;
    }
}

TEST_P(every_text, FitsInTheGuide) {
    std::vector<std::string> found;
    visit_dialog([this](input_guard& guard) { run_guide(window->mainview, guard, texts); },
                 [&](const QWidget& guide) {
                     found = lines_of(misfits(guide));
                     EXPECT_TRUE(window->mainview->rect().contains(guide.geometry()));
                 });
    EXPECT_THAT(found, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(languages, every_text, testing::ValuesIn(languages()),
                         [](const auto& language) { return language.param; });

// The measure itself.
class measure : public spoken_window {
protected:
    void SetUp() override { open_in(QStringLiteral("en")); }
};

TEST_F(measure, FindsATextThatIsCut) {
    show_state("raid1");
    window->raidmodelabel->set_value(QString(80, QLatin1Char('W')));
    EXPECT_THAT(lines_of(misfits(*window->mainview)),
                testing::ElementsAre(testing::HasSubstr("raidmodelabel")));
}

TEST_F(measure, FindsTextsThatOverlap) {
    show_state("raid1");
    window->disk0caplabel->move(window->raidmodelabel->pos());
    EXPECT_THAT(lines_of(misfits(*window->mainview)),
                testing::Contains(testing::HasSubstr("overlaps")));
}

} // namespace
