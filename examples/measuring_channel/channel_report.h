// A report on the channel: a text that readings are inserted into, in an order that the user drags.
#pragma once

#include <afxcmn.h>

struct Reading {
    int value, change;
    CString zone, unit;
};

class ChannelReport {
public:
    /// Takes the template's controls over.
    void Join(CDataExchange* exchange);
    void ExchangeOrder(CDataExchange* exchange, CString& order);
    /// Puts the bar's controls into their bands and fills them, once.
    void Build(CWnd& dialog);

    /// The latest reading, which the list shows beside its parts.
    void Tell(const Reading& reading);
    /// As a line of its own at the end, with the parts in their order.
    void InsertReading();
    /// ID_EDIT_UNDO and the like.
    void Edit(UINT command);
    /// What is written from now on, and what is selected.
    void UseInk();
    /// The list's columns are as wide as the header's.
    void FollowHeader();

private:
    void FillInks();
    void AddBand(CWnd& child, int width);
    CString PartOf(int part) const;
    void ShowParts();

    Reading latest_{};
    CReBarCtrl rebar_;
    CToolBarCtrl editing_;
    CImageList pictures_;
    CComboBoxEx ink_;
    CRichEditCtrl text_;
    CHeaderCtrl header_;
    CDragListBox order_;
};
