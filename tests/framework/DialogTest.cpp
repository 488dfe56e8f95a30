// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "framework/TestDialog.h"

namespace lumerin {

namespace {

using headless::HeadlessDialog;
using testing::ElementsAre;
using testing::Pair;

using DialogTest = HeadlessTest;

TEST_F(DialogTest, StartsWithTheControlsOfItsList) {
    TestDialog dialog;
    Run(dialog, [](HeadlessDialog& front) {
        EXPECT_EQ(front.Title(), "Test");
        ASSERT_EQ(front.Controls().size(), std::size(kTestControls));
        EXPECT_TRUE(front.Find(15)->enabled);
        EXPECT_FALSE(front.Find(16)->enabled);
        EXPECT_TRUE(front.Find(16)->visible);
        EXPECT_FALSE(front.Find(17)->visible);
        EXPECT_EQ(front.Find(22)->text, "Text");
        EXPECT_EQ(front.Find(99), nullptr);
    });
}

TEST_F(DialogTest, DataExchangeBringsTheMembersToTheControls) {
    TestDialog dialog;
    dialog.radio = 1;
    Run(dialog, [](HeadlessDialog& front) {
        EXPECT_FALSE(front.Find(11)->checked);
        EXPECT_TRUE(front.Find(12)->checked);
        EXPECT_TRUE(front.Find(14)->checked);
        EXPECT_EQ(front.Find(18)->text, "7");
    });
}

TEST_F(DialogTest, DataExchangeBringsTheControlsToTheMembers) {
    TestDialog dialog;
    Run(dialog, [&](HeadlessDialog& front) {
        front.Click(12);
        front.Click(14);
        front.TypeText(18, "42");
        dialog.UpdateData(true);
    });
    EXPECT_EQ(dialog.radio, 1);
    EXPECT_EQ(dialog.check, 0);
    EXPECT_EQ(dialog.number, 42);
}

TEST_F(DialogTest, ARadioValueOutsideTheGroupChecksNoneAndReadsAsMinusOne) {
    TestDialog dialog;
    dialog.radio = 7;
    Run(dialog, [&](HeadlessDialog& front) {
        EXPECT_FALSE(front.Find(11)->checked);
        EXPECT_FALSE(front.Find(12)->checked);
        dialog.UpdateData(true);
    });
    EXPECT_EQ(dialog.radio, -1);
}

TEST_F(DialogTest, ARadioButtonUnchecksItsOwnGroupAlone) {
    TestDialog dialog;
    Run(dialog, [](HeadlessDialog& front) {
        front.Click(13);
        front.Click(12);
        EXPECT_FALSE(front.Find(11)->checked);
        EXPECT_TRUE(front.Find(12)->checked);
        EXPECT_TRUE(front.Find(13)->checked);
    });
    EXPECT_THAT(RadioGroupOf(kTestSpec, 12), ElementsAre(11, 12));
    EXPECT_THAT(RadioGroupOf(kTestSpec, 13), ElementsAre(13));
    EXPECT_TRUE(RadioGroupOf(kTestSpec, 14).empty());
}

TEST_F(DialogTest, DisabledHiddenAndMissingControlsRefuse) {
    TestDialog dialog;
    Run(dialog, [&](HeadlessDialog& front) {
        dialog.notices.clear();
        EXPECT_FALSE(front.Click(16));
        EXPECT_FALSE(front.Click(17));
        EXPECT_FALSE(front.Click(99));
        EXPECT_FALSE(front.TypeText(15, "a button takes no text"));
        EXPECT_FALSE(front.Spin(15, true));
        EXPECT_FALSE(front.SelectEntry(20, 0));  // the list is empty
        EXPECT_FALSE(front.TypeCell(0, 0, "there is no grid"));
        EXPECT_FALSE(front.ClickGraph(1.0));
        EXPECT_TRUE(dialog.notices.empty());
        EXPECT_TRUE(front.Click(15));
        EXPECT_THAT(dialog.notices, ElementsAre(Pair(15, Notice::clicked)));
    });
}

TEST_F(DialogTest, ALinkTextReportsItsClickAndAPlainTextDoesNot) {
    TestDialog dialog;
    Run(dialog, [&](HeadlessDialog& front) {
        dialog.notices.clear();
        EXPECT_TRUE(front.Click(22));
        EXPECT_TRUE(front.Click(21));
        EXPECT_THAT(dialog.notices, ElementsAre(Pair(21, Notice::clicked)));
    });
}

TEST_F(DialogTest, AnEditReportsTheLossOfFocusBeforeTheButtonIsPressed) {
    TestDialog dialog;
    Run(dialog, [&](HeadlessDialog& front) {
        front.Focus(18);
        dialog.notices.clear();
        front.Click(15);
        EXPECT_THAT(dialog.notices, ElementsAre(Pair(18, Notice::focusLost), Pair(15, Notice::clicked)));
    });
}

TEST_F(DialogTest, ASpinStepMovesItsEditAndStopsAtTheEndOfItsRange) {
    TestDialog dialog;
    Run(dialog, [&](HeadlessDialog& front) {
        dialog.spin.SetRange(1, 2);
        dialog.spin.SetPos(1);
        dialog.notices.clear();
        front.Spin(19, true);
        EXPECT_EQ(front.Find(18)->text, "2");
        EXPECT_THAT(dialog.notices, ElementsAre(Pair(18, Notice::textChanged)));
        front.Spin(19, true);
        EXPECT_EQ(dialog.spin.GetPos(), 2);
        // The text stays, so there is no second notice.
        EXPECT_EQ(dialog.notices.size(), 1U);
        front.Spin(19, false);
        EXPECT_EQ(dialog.spin.GetPos(), 1);
    });
}

constexpr ControlSpec kLoneSpinControls[] = {
#include "framework/ControlTable.h"

    DEFAULT_BUTTON(1, "OK", 0, 0, 1, 1) PUSH_BUTTON_DISABLED(30, "Disabled", 0, 0, 1, 1)
        SPIN_BUTTON(31, 0, 0, 1, 1)};
constexpr DialogTemplate kLoneSpinSpec = {901, "Lone", 100, 100, true, kLoneSpinControls};

class LoneSpinDialog : public CDialog {
  public:
    LoneSpinDialog() : CDialog(kLoneSpinSpec) {}
    void DoDataExchange(CDataExchange& exchange) override { DDX_Control(exchange, 31, spin); }
    CSpinButtonCtrl spin;
};

TEST_F(DialogTest, ASpinButtonBelongsToAnEditBeforeItAlone) {
    LoneSpinDialog dialog;
    Run(dialog, [&](HeadlessDialog& front) {
        dialog.spin.SetRange(1, 3);
        dialog.spin.SetPos(1);
        EXPECT_TRUE(front.Spin(31, true));
        EXPECT_EQ(dialog.spin.GetPos(), 2);  // the disabled button before it does not matter
        EXPECT_EQ(front.Find(30)->text, "Disabled");
    });
}

TEST_F(DialogTest, AComboChoiceIsNotified) {
    TestDialog dialog;
    Run(dialog, [&](HeadlessDialog& front) {
        dialog.combo.AddString("one");
        dialog.combo.AddString("two");
        dialog.combo.SetCurSel(0);
        dialog.notices.clear();
        EXPECT_TRUE(front.SelectEntry(20, 1));
        EXPECT_EQ(dialog.combo.GetCurSel(), 1);
        EXPECT_EQ(dialog.combo.GetWindowText(), "two");
        EXPECT_THAT(dialog.notices, ElementsAre(Pair(20, Notice::selectionChanged)));
        EXPECT_FALSE(front.SelectEntry(20, 2));
    });
}

TEST_F(DialogTest, OkCancelAndEscEndTheDialogWithTheirResults) {
    TestDialog dialog;
    EXPECT_EQ(Run(dialog, [](HeadlessDialog& front) { front.Click(IDOK); }), IDOK);
    EXPECT_EQ(Run(dialog, [](HeadlessDialog& front) { front.PressEscape(); }), IDCANCEL);
    // The driver leaves the dialog open: the button "Close" ends it.
    EXPECT_EQ(Run(dialog, [](HeadlessDialog&) {}), IDCANCEL);
    EXPECT_EQ(Run(dialog, nullptr), IDCANCEL);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(dialog.spin.m_hWnd, nullptr);
}

TEST_F(DialogTest, ReturnPressesTheDefaultButtonUnlessAButtonHasTheFocus) {
    TestDialog dialog;
    EXPECT_EQ(Run(dialog, [](HeadlessDialog& front) { front.PressReturn(); }), IDOK);
    Run(dialog, [&](HeadlessDialog& front) {
        front.Focus(15);
        dialog.notices.clear();
        front.PressReturn();
        EXPECT_THAT(dialog.notices, ElementsAre(Pair(15, Notice::clicked)));
    });
}

TEST_F(DialogTest, F1NamesTheControl) {
    TestDialog dialog;
    Run(dialog, [](HeadlessDialog& front) {
        EXPECT_TRUE(front.PressHelp(16));
        EXPECT_FALSE(front.PressHelp(99));
    });
    EXPECT_EQ(dialog.helped, 16);
}

TEST_F(DialogTest, F1GoesOnToTheDialogBelowWhereThisOneHasNoAnswer) {
    TestDialog outer, inner;
    inner.answersHelp = false;
    outer.onCommand = [&](int id, Notice) {
        if (id == 15) inner.DoModal();
    };
    Run(outer, [&](HeadlessDialog& front) {
        if (&front.Dialog() == &inner) {
            EXPECT_TRUE(front.PressHelp(16));
        } else {
            front.Click(15);
            EXPECT_EQ(outer.helped, 16);
            // After the inner dialog the outer one is alone again.
            front.PressHelp(15);
        }
    });
    EXPECT_EQ(inner.helped, 16);
    EXPECT_EQ(outer.helped, 15);
}

TEST_F(DialogTest, ADialogOpenedByAPressIsDrivenInsideThePress) {
    TestDialog outer, inner;
    std::vector<std::string> order;
    outer.onCommand = [&](int id, Notice) {
        if (id != 15) return;
        order.push_back("opens");
        EXPECT_EQ(inner.DoModal(), IDOK);
        order.push_back("closed");
    };
    Run(outer, [&](HeadlessDialog& front) {
        if (&front.Dialog() == &inner) {
            order.push_back("driven");
            front.Click(IDOK);
        } else {
            front.Click(15);
            EXPECT_TRUE(front.IsOpen());
        }
    });
    EXPECT_THAT(order, ElementsAre("opens", "driven", "closed"));
    EXPECT_EQ(sink.dialogs.size(), 2U);
}

TEST_F(DialogTest, AFileFaultInAHandlerIsReportedAndTheDialogStaysOpen) {
    TestDialog dialog;
    dialog.onCommand = [](int id, Notice) {
        if (id == 15) throw CFileException(CFileException::badFormat, "p.PLF", "the mark is wrong");
        if (id == 14) throw std::bad_alloc();
    };
    SetApplicationName("Test program");
    const int result = Run(dialog, [](HeadlessDialog& front) {
        EXPECT_TRUE(front.Click(15));
        EXPECT_TRUE(front.Click(14));
        EXPECT_TRUE(front.IsOpen());
        front.Click(IDOK);
    });
    EXPECT_EQ(result, IDOK);
    ASSERT_EQ(sink.messages.size(), 2U);
    EXPECT_EQ(sink.messages[0].text, "p.PLF: the mark is wrong");
    EXPECT_EQ(sink.messages[0].title, "Test program");
    EXPECT_EQ(sink.messages[1].text, "There is not enough memory for this operation.");
}

TEST_F(DialogTest, AFileFaultInTheInitialisationLeavesTheDialogOpen) {
    TestDialog dialog;
    dialog.onInit = [] {
        throw CFileException(CFileException::fileNotFound, "p.TWR", "the file was not found");
    };
    bool driven = false;
    Run(dialog, [&](HeadlessDialog& front) { driven = front.IsOpen(); });
    EXPECT_TRUE(driven);
    ASSERT_EQ(sink.messages.size(), 1U);
    EXPECT_EQ(sink.messages[0].text, "p.TWR: the file was not found");
}

TEST_F(DialogTest, QuestionsGetTheAnswerThatWasSet) {
    EXPECT_EQ(AfxMessageBox("Go?", MessageIcon::question, MessageButtons::yesNo), MessageAnswer::yes);
    headless::State().answer = MessageAnswer::no;
    EXPECT_EQ(AfxMessageBox("Go?", MessageIcon::question, MessageButtons::yesNo), MessageAnswer::no);
    EXPECT_EQ(AfxMessageBox("Done."), MessageAnswer::ok);
    EXPECT_EQ(sink.messages[2].icon, MessageIcon::exclamation);
}

TEST_F(DialogTest, WaitCursorsAreCounted) {
    {
        const CWaitCursor outer;
        const CWaitCursor inner;
        EXPECT_EQ(backend::WaitCursorDepth(), 2);
    }
    EXPECT_EQ(backend::WaitCursorDepth(), 0);
    backend::EndWaitCursor();
    EXPECT_EQ(backend::WaitCursorDepth(), 0);
}

TEST_F(DialogTest, SettingsOfTheUserAreAbsentUntilSet) {
    int size = 5;
    std::string header = "kept";
    EXPECT_FALSE(services::ReadUserNumber("Program", "size", size));
    EXPECT_EQ(size, 5);
    headless::State().userNumbers["Program"]["size"] = 120;
    EXPECT_TRUE(services::ReadUserNumber("Program", "size", size));
    EXPECT_EQ(size, 120);
    headless::State().userTexts["Program"]["header"] = "&f";
    EXPECT_FALSE(services::ReadUserText("Program", "header", 2, header));  // no space for the zero
    EXPECT_EQ(header, "kept");
    EXPECT_TRUE(services::ReadUserText("Program", "header", 3, header));
    EXPECT_EQ(header, "&f");
}

}  // namespace

}  // namespace lumerin
