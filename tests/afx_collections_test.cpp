// Collections, beside the standard library's.
#include "afx_test_app.h"

#include <afxtempl.h>

#include <map>
#include <random>
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

TEST(AfxArray, DoesAsAVectorDoes) {
    CArray<int, int> array;
    CDWordArray words;
    std::vector<int> expected;
    std::minstd_rand random(7);
    for (int step = 0; step < 2000; ++step) {
        const auto at = static_cast<INT_PTR>(random() % (expected.size() + 1));
        switch (random() % 4) {
        case 0:
            if (at < array.GetSize()) {
                array.RemoveAt(at);
                words.RemoveAt(at);
                expected.erase(expected.begin() + at);
            }
            break;
        case 1:
            array.InsertAt(at, step, 2);
            words.InsertAt(at, static_cast<DWORD>(step), 2);
            expected.insert(expected.begin() + at, 2, step);
            break;
        default:
            EXPECT_EQ(array.Add(step), static_cast<INT_PTR>(expected.size()));
            words.Add(static_cast<DWORD>(step));
            expected.push_back(step);
        }
    }
    ASSERT_EQ(array.GetSize(), static_cast<INT_PTR>(expected.size()));
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), array.GetData()));
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), words.GetData()));
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
    CTypedPtrList<CPtrList, int*> numbers;
    int number = 5;
    numbers.AddTail(&number);
    EXPECT_EQ(*numbers.GetHead(), 5);
}

TEST(AfxMap, DoesAsAMapDoes) {
    CMap<int, int, CString, LPCTSTR> map;
    CMapStringToString strings;
    CMapWordToPtr words;
    std::map<int, std::string> expected;
    std::minstd_rand random(11);
    for (int step = 0; step < 3000; ++step) {
        const int key = static_cast<int>(random() % 300);
        const std::string text = std::to_string(step);
        if (random() % 3 == 0) {
            const bool there = expected.erase(key) != 0;
            EXPECT_EQ(map.RemoveKey(key) != 0, there);
            EXPECT_EQ(strings.RemoveKey(std::to_string(key).c_str()) != 0, there);
            EXPECT_EQ(words.RemoveKey(static_cast<WORD>(key)) != 0, there);
        } else {
            expected[key] = text;
            map.SetAt(key, text.c_str());
            strings[std::to_string(key).c_str()] = text.c_str();
            words[static_cast<WORD>(key)] = &expected[key];
        }
    }
    for (const INT_PTR count : {map.GetCount(), strings.GetCount(), words.GetCount()})
        EXPECT_EQ(count, static_cast<INT_PTR>(expected.size()));
    for (const auto& [key, text] : expected) {
        CString found, found_by_text;
        void* at = nullptr;
        ASSERT_TRUE(map.Lookup(key, found) && strings.Lookup(std::to_string(key).c_str(), found_by_text));
        ASSERT_TRUE(words.Lookup(static_cast<WORD>(key), at));
        EXPECT_TRUE(found == text.c_str() && found_by_text == text.c_str() && at == &text) << key;
    }
    int key = 0;
    CString value;
    for (POSITION at = map.GetStartPosition(); at != nullptr;) { // each pair goes once it is told
        map.GetNextAssoc(at, key, value);
        EXPECT_EQ(expected.at(key), value.GetString());
        map.RemoveKey(key);
    }
    EXPECT_TRUE(map.IsEmpty());
}

} // namespace
