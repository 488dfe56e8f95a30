// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "framework/File.h"
#include "framework/headless/Headless.h"

namespace lumerin {

// A dialog with one control of each kind; it records the notices that reach it.

inline constexpr ControlSpec kTestControls[] = {
#include "framework/ControlTable.h"

    GROUP_BOX(10, "Group", 0, 0, 1, 1) RADIO_FIRST(11, "First", 0, 0, 1, 1) RADIO(12, "Second", 0, 0, 1, 1)
        RADIO_FIRST(13, "Other", 0, 0, 1, 1) CHECK_BOX(14, "Check", 0, 0, 1, 1)
            PUSH_BUTTON(15, "Push", 0, 0, 1, 1) PUSH_BUTTON_DISABLED(16, "Disabled", 0, 0, 1, 1)
                PUSH_BUTTON_HIDDEN(17, "Hidden", 0, 0, 1, 1) NUMBER_EDIT(18, 0, 0, 1, 1)
                    SPIN_BUTTON(19, 0, 0, 1, 1) DROP_LIST(20, 0, 0, 1, 1) LINK_TEXT(21, "Link", 0, 0, 1, 1)
                        LEFT_TEXT(22, "Text", 0, 0, 1, 1) LEFT_TEXT(NO_ID, "No identifier", 0, 0, 1, 1)
                            DEFAULT_BUTTON(1, "OK", 0, 0, 1, 1) PUSH_BUTTON(2, "Close", 0, 0, 1, 1)};
inline constexpr DialogTemplate kTestSpec = {900, "Test", 100, 100, true, kTestControls};

class TestDialog : public CDialog {
  public:
    TestDialog() : CDialog(kTestSpec) {}

    bool OnInitDialog() override {
        if (onInit) onInit();
        return CDialog::OnInitDialog();
    }
    bool OnCommand(int id, Notice notice) override {
        notices.emplace_back(id, notice);
        if (onCommand) onCommand(id, notice);
        return CDialog::OnCommand(id, notice);
    }
    bool OnHelpInfo(int id) override {
        helped = id;
        return answersHelp;
    }
    void DoDataExchange(CDataExchange& exchange) override {
        DDX_Radio(exchange, 11, radio);
        DDX_Check(exchange, 14, check);
        DDX_Text(exchange, 18, number);
        DDX_Control(exchange, 19, spin);
        DDX_Control(exchange, 20, combo);
    }

    std::function<void()> onInit;
    std::function<void(int, Notice)> onCommand;
    std::vector<std::pair<int, Notice>> notices;
    int helped = 0;
    bool answersHelp = true;
    int radio = 0, check = 1, number = 7;
    CSpinButtonCtrl spin;
    CComboBox combo;
};

class HeadlessTest : public testing::Test {
  protected:
    HeadlessTest() {
        headless::ResetState();
        headless::SetSink(&sink);
    }
    ~HeadlessTest() override { headless::ResetState(); }

    int Run(CDialog& dialog, headless::ModalDriver driver) {
        headless::SetModalDriver(std::move(driver));
        return dialog.DoModal();
    }

    headless::RecordingSink sink;
};

}  // namespace lumerin
