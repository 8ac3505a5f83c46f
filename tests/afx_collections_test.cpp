// Collections, beside the standard library's.
#include "afx_test_app.h"

#include <afxtempl.h>

#include <string>
#include <vector>

namespace {

struct counted {
    int calls;
};
void AFXAPI SerializeElements(CArchive&, counted* at, int count) { // the form of 32 bits
    at->calls += count;
}

TEST(AfxArray, SerialisesByTheProgramsFormAndHoldsWhatIsNeverCopied) {
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    CArray<counted> seen;
    seen.SetSize(2);
    seen.Serialize(ar);
    EXPECT_EQ(seen[0].calls, 2);
    CArray<CStringArray, CStringArray&> rows;
    rows.SetSize(2);
    rows[1].Add("x");
    rows.SetSize(9);
    rows.RemoveAt(0);
    EXPECT_STREQ(rows[0][0], "x");
    EXPECT_TRUE(raises<CNotSupportedException>([&] { rows.Serialize(ar); }));
}

TEST(AfxArray, InsertsAndRemovesInTheMiddle) {
    const auto changed = [](auto&& array) {
        for (int i = 0; i < 40; ++i)
            EXPECT_EQ(array.Add(i), i);
        array.InsertAt(2, 70, 3);
        array.RemoveAt(7, 35);
        array.RemoveAt(0);
        return std::vector<int>(array.GetData(), array.GetData() + array.GetSize());
    };
    EXPECT_THAT(changed(CArray<int, int>()), testing::ElementsAre(1, 70, 70, 70, 2, 3, 39));
    EXPECT_THAT(changed(CDWordArray()), testing::ElementsAre(1, 70, 70, 70, 2, 3, 39));
}

TEST(AfxArray, GrowsWhereAskedAndRefusesBadPlaces) {
    CArray<CString> array;
    array.SetAtGrow(3, "d");
    EXPECT_EQ(array.GetUpperBound(), 3);
    EXPECT_TRUE(array[0].IsEmpty());
    array.Append(array); // from itself
    EXPECT_EQ(array.GetSize(), 8);
    EXPECT_STREQ(array[7], "d");
    array.Add(array[7]);
    EXPECT_STREQ(array[8], "d");
    CArray<bool, bool> flags;
    flags.SetSize(3);
    EXPECT_FALSE(flags.GetData()[2]);
    const std::function<void()> wrong[] = {[&] { array.GetAt(9); }, [&] { array.RemoveAt(8, 2); },
                                           [&] { array.InsertAt(-1, "x"); }, [&] { array.SetSize(-1); }};
    for (const auto& call : wrong)
        EXPECT_TRUE(raises<CInvalidArgException>(call)) << &call - wrong;
}

TEST(AfxList, KeepsPlacesWhileOthersGo) {
    CStringList list;
    list.AddTail("b"), list.AddHead("a");
    POSITION c = list.AddTail("c");
    list.InsertAfter(c, "e");
    POSITION e = list.GetTailPosition();
    list.InsertBefore(e, "d");
    list.AddTail(&list);
    std::string text;
    for (POSITION at = list.GetHeadPosition(); at != nullptr;) {
        const POSITION here = at;
        const CString item = list.GetNext(at);
        text += item.GetString();
        if (item == "b")
            list.RemoveAt(here);
    }
    EXPECT_EQ(text, "abcdeabcde");
    EXPECT_EQ(list.GetCount(), 8);
    EXPECT_STREQ(list.GetAt(c), "c");
    const POSITION second = list.Find("c", c);
    EXPECT_TRUE(second != nullptr && second != c && list.Find("c", second) == nullptr);
    EXPECT_STREQ(list.GetAt(list.FindIndex(7)), "e");
    EXPECT_EQ(list.FindIndex(8), nullptr);
    EXPECT_STREQ(list.RemoveTail(), "e");
}

TEST(AfxMap, FindsWhatWasNotRemoved) {
    CMap<int, int, CString, LPCTSTR> map;
    CMapStringToString strings;
    CMapWordToPtr words;
    const auto text = [](int number) { return CString(std::to_string(number).c_str()); };
    const auto add = [&](int i) {
        map.SetAt(i, text(i));
        strings[text(i)] = text(2 * i);
        words[static_cast<WORD>(i)] = &map + i;
    };
    for (int i = 0; i < 300; ++i)
        add(i);
    for (int i = 2; i < 303; i += 3) // the last was never there
        EXPECT_THAT((std::vector{map.RemoveKey(i), strings.RemoveKey(text(i)), words.RemoveKey(static_cast<WORD>(i))}),
                    testing::Each(i < 300));
    add(300);
    int key = 0, found = 0;
    CString value, other;
    void* place = nullptr;
    for (POSITION at = map.GetStartPosition(); at != nullptr; ++found) { // each pair goes once it is told
        map.GetNextAssoc(at, key, value);
        EXPECT_TRUE(key % 3 != 2 && value == text(key) && map.RemoveKey(key) && !map.Lookup(key, value)) << key;
        EXPECT_TRUE(strings.Lookup(text(key), other) && other == text(2 * key) &&
                    words.Lookup(static_cast<WORD>(key), place) && place == &map + key);
    }
    EXPECT_THAT((std::vector{INT_PTR{found}, strings.GetCount(), words.GetCount(), map.GetCount() + 201}),
                testing::Each(201));
}

} // namespace
