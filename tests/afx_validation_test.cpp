// What the user may enter: numbers at the ends of their types, dates and lengths at their limits.
#include "afx_data_dialog.h"

#include <atlcomtime.h>

#include <limits>

namespace {

struct AfxEntry : WithDataDialog<data_dialog> {
    // False where the exchange is refused: the user is told once.
    bool exchange(BOOL save, const std::function<void(CDataExchange*)>& work) {
        CDataExchange data(&dialog, save);
        try {
            work(&data);
            EXPECT_TRUE(the_app.take_boxes().empty());
            return true;
        } catch (CUserException* exception) {
            exception->Delete();
            const auto boxes = the_app.take_boxes();
            EXPECT_EQ(boxes.size(), 1u);
            told = boxes.empty() ? "" : boxes[0];
            return false;
        }
    }
    std::string told;
    // What comes of the text as a number between these; nothing where it is refused.
    template <class Number>
    bool take(const char* text, Number& number, void(AFXAPI* limit)(CDataExchange*, Number, Number, Number),
              Number least, Number most) {
        dialog.SetDlgItemText(IDC_COUNT, text);
        return exchange(TRUE, [&](CDataExchange* data) {
            DDX_Text(data, IDC_COUNT, number);
            limit(data, number, least, most);
        });
    }
    // The ends of the type are taken, one more is not, nor is what lies beyond narrower limits.
    template <class Number> void check_ends(void(AFXAPI* limit)(CDataExchange*, Number, Number, Number)) {
        using Limits = std::numeric_limits<Number>;
        const auto plus_one = [](std::string digits) { // of numbers that end in neither 9 nor a minus
            return digits.back()++, digits;
        };
        Number number = 7;
        const auto any = [&](const std::string& text) {
            return take(text.c_str(), number, limit, Limits::min(), Limits::max());
        };
        EXPECT_TRUE(any(std::to_string(Limits::max())));
        EXPECT_FALSE(any(plus_one(std::to_string(Limits::max()))));
        EXPECT_EQ(number, Limits::max()) << "what is refused changes nothing";
        EXPECT_TRUE(any(std::to_string(Limits::min())) && number == Limits::min());
        EXPECT_FALSE(any(Limits::is_signed ? plus_one(std::to_string(Limits::min())) : "-1"));
        for (const auto& [text, taken] : {std::pair{"4", false}, {"5", true}, {"9", true}, {"10", false}})
            EXPECT_EQ(take(text, number, limit, Number{5}, Number{9}), taken) << text;
        EXPECT_EQ(told, "Enter a whole number between 5 and 9.");
        for (const char* wrong : {"", " ", "5x", "x5", "5 5", "5.0", "0x5", "--5", "+", "99999999999999999999999"})
            EXPECT_FALSE(any(wrong)) << wrong;
    }
};

TEST_F(AfxEntry, NumbersAreTakenUpToTheEndsOfTheirTypes) {
    check_ends<BYTE>(&DDV_MinMaxByte);
    check_ends<short>(&DDV_MinMaxShort);
    check_ends<int>(&DDV_MinMaxInt);
    check_ends<long>(&DDV_MinMaxLong);
    check_ends<UINT>(&DDV_MinMaxUInt);
    check_ends<DWORD>(&DDV_MinMaxDWord);
    check_ends<LONGLONG>(&DDV_MinMaxLongLong);
    check_ends<ULONGLONG>(&DDV_MinMaxULongLong);
}

TEST_F(AfxEntry, RealNumbersAreTakenAsTheyAreShown) {
    const std::tuple<const char*, bool, bool> cases[] = {
        {"0.5", true, true},     {"-1e30", true, true}, {"1e39", false, true}, {"-1e308", false, true},
        {"1e309", false, false}, {"inf", false, false}, {"nan", false, false}, {"1,5", false, false},
        {"", false, false},      {".", false, false},   {" 2.5 ", true, true}};
    for (const auto& [text, as_float, as_double] : cases) {
        float narrow = 0;
        double wide = 0;
        dialog.SetDlgItemText(IDC_FACTOR, text);
        EXPECT_EQ(exchange(TRUE, [&](CDataExchange* data) { DDX_Text(data, IDC_FACTOR, narrow); }), as_float) << text;
        EXPECT_EQ(exchange(TRUE, [&](CDataExchange* data) { DDX_Text(data, IDC_FACTOR, wide); }), as_double) << text;
    }
    for (double shown : {0.1, 1e-300, -123456789.125, 1e15}) {
        double read = 0;
        exchange(FALSE, [&](CDataExchange* data) { DDX_Text(data, IDC_FACTOR, shown); });
        EXPECT_TRUE(exchange(TRUE, [&](CDataExchange* data) { DDX_Text(data, IDC_FACTOR, read); }));
        EXPECT_EQ(read, shown);
    }
    const auto within = [&](double value) {
        return exchange(TRUE, [&](CDataExchange* data) {
            EXPECT_EQ(data->PrepareEditCtrl(IDC_FACTOR), data->m_hWndLastControl);
            DDV_MinMaxDouble(data, value, -0.5, 0.5);
        });
    };
    EXPECT_TRUE(within(-0.5) && within(0.5));
    EXPECT_FALSE(within(0.5000001) || within(-0.6) || within(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_EQ(told, "Enter a number between -0.5 and 0.5.");
}

TEST_F(AfxEntry, DatesStayBetweenTheirBounds) {
    const CTime first(2020, 2, 29, 0, 0, 0), last(2021, 12, 31, 23, 59, 59);
    const auto within = [&](CTime day) {
        return exchange(TRUE, [&](CDataExchange* data) {
            data->PrepareCtrl(IDC_DAY);
            DDV_MinMaxDateTime(data, day, &first, &last);
        });
    };
    EXPECT_TRUE(within(first) && within(last));
    EXPECT_FALSE(within(first - CTimeSpan(1)) || within(last + CTimeSpan(1)));
    CTime day(2020, 3, 1, 5, 6, 7), month(2021, 5, 1, 0, 0, 0);
    EXPECT_TRUE(exchange(FALSE, [&](CDataExchange* data) {
        DDX_DateTimeCtrl(data, IDC_DAY, day);
        DDV_MinMaxDateTime(data, day, &first, &last);
        DDX_MonthCalCtrl(data, IDC_MONTH, month);
        DDV_MinMaxMonth(data, month, &first, nullptr);
    }));
    auto& picker = *static_cast<CDateTimeCtrl*>(dialog.GetDlgItem(IDC_DAY));
    CTime least, most, shown;
    EXPECT_EQ(picker.GetRange(&least, &most), static_cast<DWORD>(GDTR_MIN | GDTR_MAX));
    EXPECT_TRUE(least.GetYear() == 2020 && least.GetDay() == 29 && most.GetYear() == 2021);
    const CTime outside(2022, 1, 1, 0, 0, 0);
    picker.SetTime(&outside);
    EXPECT_TRUE(picker.GetTime(shown) == GDT_VALID && shown == day) << "the control keeps to its range, too";
    auto& calendar = *static_cast<CMonthCalCtrl*>(dialog.GetDlgItem(IDC_MONTH));
    EXPECT_EQ(calendar.GetRange(&least, &most), static_cast<DWORD>(GDTR_MIN));
    EXPECT_EQ(most, CTime()) << "there is no bound above";
    EXPECT_FALSE(calendar.SetCurSel(first - CTimeSpan(3, 0, 0, 0)));
    EXPECT_TRUE(calendar.SetCurSel(CTime(2031, 1, 2, 0, 0, 0)) && calendar.GetCurSel(shown));
    EXPECT_EQ(shown.GetYear(), 2031);
}

TEST_F(AfxEntry, DatesOfAutomationAreExchangedToo) {
    COleDateTime day(2020, 3, 1, 5, 6, 7), month(2021, 5, 1, 9, 0, 0), typed(2019, 8, 7, 6, 5, 4), none;
    const COleDateTime first(2020, 2, 29, 0, 0, 0), was[] = {day, typed};
    const auto all = [&](CDataExchange* data) {
        DDX_DateTimeCtrl(data, IDC_DAY, day);
        DDV_MinMaxDateTime(data, day, &first, nullptr);
        DDX_MonthCalCtrl(data, IDC_MONTH, month);
        DDX_Text(data, IDC_COUNT, typed);
    };
    EXPECT_TRUE(exchange(FALSE, all));
    day = month = typed = none;
    EXPECT_TRUE(exchange(TRUE, all) && day == was[0] && typed == was[1]);
    EXPECT_TRUE(month == COleDateTime(2021, 5, 1, 0, 0, 0));
    day.SetStatus(COleDateTime::null);
    EXPECT_TRUE(exchange(TRUE, [&](CDataExchange* data) {
        data->PrepareCtrl(IDC_DAY);
        DDV_MinMaxDateTime(data, day, &was[0], &first);
    })) << "none is not outside";
    dialog.SetDlgItemText(IDC_COUNT, "no day");
    EXPECT_FALSE(exchange(TRUE, all));
}

TEST_F(AfxEntry, LengthsAreLimitedInEditsAndInCombos) {
    CString text = "12345";
    char letters[4] = "old";
    const auto town = [&](CDataExchange* data) {
        DDX_CBString(data, IDC_TOWNS, text);
        DDV_MaxChars(data, text, 5);
    };
    const auto few = [&](CDataExchange* data) { DDX_Text(data, IDC_LETTERS, letters, 4); };
    EXPECT_TRUE(exchange(FALSE, town));
    EXPECT_EQ(::SendMessage(::GetWindow(::GetDlgItem(dialog, IDC_TOWNS), GW_CHILD), EM_GETLIMITTEXT, 0, 0), 5);
    dialog.SetDlgItemText(IDC_TOWNS, "123456");
    EXPECT_FALSE(exchange(TRUE, town));
    EXPECT_EQ(told, "Enter no more than 5 characters.");
    dialog.SetDlgItemText(IDC_LETTERS, "four");
    EXPECT_TRUE(!exchange(TRUE, few) && std::string("old") == letters);
    EXPECT_EQ(told, "Enter no more than 3 characters.");
    dialog.SetDlgItemText(IDC_LETTERS, "new");
    EXPECT_TRUE(exchange(TRUE, few) && std::string("new") == letters);
}

TEST_F(AfxEntry, ASliderTakesItsRangeFromItsLimits) {
    int place = 50;
    const auto with = [&](BOOL save) {
        return exchange(save, [&](CDataExchange* data) {
            DDX_Slider(data, IDC_SLIDE, place);
            DDV_MinMaxSlider(data, static_cast<DWORD>(place), 40, 60);
        });
    };
    EXPECT_TRUE(with(FALSE));
    dialog.SendDlgItemMessage(IDC_SLIDE, TBM_SETPOS, TRUE, 99);
    EXPECT_TRUE(with(TRUE) && place == 60);
    dialog.SendDlgItemMessage(IDC_SLIDE, TBM_SETRANGEMAX, TRUE, 100);
    dialog.SendDlgItemMessage(IDC_SLIDE, TBM_SETPOS, TRUE, 99);
    EXPECT_FALSE(with(TRUE));
}

} // namespace
