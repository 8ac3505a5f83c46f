// Objects through archives.
#include "afx_test_app.h"

#include <afxtempl.h>

#include <memory>

namespace {

// A node of a graph: its neighbours may point back to it.
class graph_node : public CObject {
    DECLARE_SERIAL(graph_node)

public:
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar << name << number << static_cast<CObject*>(next) << static_cast<CObject*>(other);
        } else {
            schema = ar.GetObjectSchema();
            ar >> name >> number >> next;
            CObject* any = nullptr;
            ar >> any;
            other = static_cast<graph_node*>(any);
        }
    }
    CString name;
    int number = 0;
    UINT schema = 0;
    graph_node *next = nullptr, *other = nullptr;
};

IMPLEMENT_SERIAL(graph_node, CObject, VERSIONABLE_SCHEMA | 3)

} // namespace

class strict_node : public CObject {
    DECLARE_SERIAL(strict_node)
public:
    void Serialize(CArchive&) override {}
};

IMPLEMENT_SERIAL(strict_node, CObject, 1)

namespace {

TEST(AfxArchive, TextsMayBeOfAnyLength) {
    const int lengths[] = {0, 254, 255, 0xFFFD, 0xFFFE, 70000};
    CMemFile file;
    store(file, [&](CArchive& ar) {
        for (const int length : lengths)
            ar << CString('b', length);
        ar.WriteString("line\r\n\n");
    });
    CArchive ar(&file, CArchive::load, 128);
    for (const int length : lengths) {
        CString text;
        ar >> text;
        EXPECT_EQ(text, CString('b', length)) << length;
    }
    CString line, empty = "full";
    EXPECT_TRUE(ar.ReadString(line) && ar.ReadString(empty));
    EXPECT_EQ(line + empty, "line");
    EXPECT_FALSE(ar.ReadString(line)) << "that was all";
}

TEST(AfxArchive, WritesTheKnownFormat) {
    CMemFile file;
    strict_node object;
    store(file, [&](CArchive& ar) {
        ar << static_cast<WORD>(0x0102) << CString("ab") << &object << &object;
        ar.MapObject(&file); // the third, after a class and an object
        ar.SerializeClass(RUNTIME_CLASS(strict_node));
        ar << &file;
        for (const DWORD_PTR count : {0xFFFEull, 0xFFFFull, 0x123456789ull})
            ar.WriteCount(count);
    });
    EXPECT_EQ(bytes_of(file),
              std::string("\2\1\2ab\xFF\xFF\1\0\xB\0strict_node\2\0\1\x80\3\0\xFE\xFF\xFF\xFF\xFF\xFF\0\0"
                          "\xFF\xFF\xFF\xFF\xFF\xFF\x89\x67\x45\x23\1\0\0\0",
                          50));
    file.SeekToBegin();
    load(file, [&](CArchive& ar) {
        WORD number = 0;
        CString text;
        CObject *first = nullptr, *second = nullptr, *third = nullptr;
        ar >> number >> text >> first >> second;
        ar.MapObject(&file);
        ar.SerializeClass(RUNTIME_CLASS(strict_node));
        ar >> third;
        EXPECT_THAT((std::vector{first, third}), testing::ElementsAre(second, &file));
        EXPECT_THAT((std::vector{ar.ReadCount(), ar.ReadCount(), ar.ReadCount()}),
                    testing::ElementsAre(0xFFFE, 0xFFFF, 0x123456789));
        delete first;
    });
    file.SetLength(0);
    file.Write("\xFF\xFE\xFF\2a\0\xAC\x20one\r\nlonger\n\nend", 25); // a text of wide characters
    file.SeekToBegin();
    load(file, [](CArchive& ar) {
        CString text;
        char line[8] = "";
        ar >> text;
        while (ar.ReadString(line, 5) != nullptr)
            text += CString("|") + line;
        EXPECT_EQ(text, "a\x80|one|longe|r||end");
    });
}

TEST(AfxArchive, RefusesWhatDoesNotFit) {
    CMemFile file;
    strict_node object;
    const auto read = [&](const std::function<void(CArchive&)>& work) {
        file.SeekToBegin();
        return cause_of<CArchiveException>([&] {
            CArchive ar(&file, CArchive::load | CArchive::bNoFlushOnDelete);
            work(ar);
        });
    };
    store(file, [&](CArchive& ar) { ar << &object; });
    EXPECT_EQ(read([](CArchive& ar) { delete ar.ReadObject(RUNTIME_CLASS(graph_node)); }), CArchiveException::badClass);
    EXPECT_EQ(read([](CArchive& ar) { ar << 1; }), CArchiveException::readOnly);
    file.Seek(2, CFile::begin);
    file.Write("\x09", 1); // the schema number of another version
    EXPECT_EQ(read([](CArchive& ar) { delete ar.ReadObject(nullptr); }), CArchiveException::badSchema);
    BYTE more[512];
    EXPECT_EQ(read([&](CArchive& ar) { ar.EnsureRead(more, sizeof(more)); }), CArchiveException::endOfFile);
    const std::pair<std::string, int> damaged[] = {
        {"", CArchiveException::endOfFile},
        {std::string("\x05\x00", 2), CArchiveException::badIndex},                    // an object that is not there
        {std::string("\x05\x80", 2), CArchiveException::badIndex},                    // a class that is not there
        {std::string("\xFF\xFF\x01\x00\x02\x00??", 8), CArchiveException::badClass},  // a class that nobody knows
        {std::string("\xFF\xFF\x01\x00\xFF\x7F??", 8), CArchiveException::badClass},  // a name longer than any
        {std::string("\xFF\xFF\x01\x00\x0B\x00st", 8), CArchiveException::badClass}}; // a name cut off
    for (const auto& [bytes, cause] : damaged) {
        file.SetLength(0);
        file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
        EXPECT_EQ(read([](CArchive& ar) { delete ar.ReadObject(nullptr); }), cause);
    }
}

// A file with everything in it.
struct contents {
    graph_node *first = nullptr, *second = nullptr;
    CObject* none = nullptr;
    CMapStringToString* texts = nullptr;
    CObList list;
    CByteArray numbers;
    CWordArray words;
    CDWordArray doubled;
    CObArray nodes;
    CStringList lines;
    CMapWordToOb by_number;
    CMapStringToOb by_name;
    CStringArray names;
    CArray<CString> more_names;
    CArray<double, double> doubles;
    CTime time;
    CRect rect;
    CString line;

    void load(CArchive& ar) {
        ar >> first >> second >> none >> texts >> time >> rect;
        ar.ReadString(line);
        serialize(ar);
    }
    void store(CArchive& ar) {
        ar << first << second << none << texts << time << rect;
        ar.WriteString(line + "\r\n");
        serialize(ar);
    }

private:
    void serialize(CArchive& ar) {
        CObject* const collections[] = {&list,    &numbers, &names, &more_names, &doubles, &words,
                                        &doubled, &nodes,   &lines, &by_number,  &by_name};
        for (CObject* one : collections)
            one->Serialize(ar);
    }
};

std::string everything() {
    graph_node a, b;
    a.name = "first";
    a.next = a.other = &b;
    b.next = &a; // a ring
    b.number = -7;
    CMapStringToString texts;
    texts["key"] = "value";
    texts["other"] = "2";
    contents all;
    all.first = &a;
    all.second = &b;
    all.texts = &texts;
    strict_node strict;
    all.list.AddTail(&strict), all.list.AddTail(&strict);
    all.numbers.Add(5), all.names.Add("one"), all.more_names.Add("x"), all.doubles.Add(1 / 3.0);
    all.words.Add(0x1234);
    all.doubled.Add(0x12345678);
    all.nodes.Add(&a);
    all.lines.AddTail("y");
    all.by_number[9] = &b;
    all.by_name["b"] = &b;
    all.time = 12345;
    all.rect = CRect(1, 2, 3, 4);
    all.line = "line";
    CMemFile file;
    store(file, [&](CArchive& ar) { all.store(ar); });
    return bytes_of(file);
}

// False where the framework's exceptions refuse it. Objects of a file that is refused are lost, as is documented.
bool reads(const std::string& bytes, contents& all) {
    CMemFile file;
    file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
    file.SeekToBegin();
    try {
        CArchive ar(&file, CArchive::load | CArchive::bNoFlushOnDelete, 128);
        all.load(ar);
        return true;
    } catch (CArchiveException* exception) {
        exception->Delete();
    } catch (CMemoryException* exception) {
        exception->Delete();
    } catch (CNotSupportedException* exception) {
        exception->Delete();
    }
    return false;
}

TEST(AfxArchive, GivesBackWhatWasStored) {
    contents all;
    ASSERT_TRUE(reads(everything(), all));
    using Owner = std::unique_ptr<CObject>;
    const Owner owned[] = {Owner(all.first), Owner(all.second), Owner(all.texts), Owner(all.list.GetHead())};
    EXPECT_TRUE(all.first->next == all.second && all.first->other == all.second && all.second->next == all.first);
    EXPECT_TRUE(all.first->name == "first" && all.second->number == -7 && all.first->schema == 3);
    EXPECT_TRUE(all.texts->GetCount() == 2 && (*all.texts)["other"] == "2");
    EXPECT_TRUE(all.list.GetCount() == 2 && all.list.GetHead() == all.list.GetTail());
    EXPECT_TRUE(all.numbers[0] == 5 && all.names[0] == "one" && all.more_names[0] == "x" && all.doubles[0] == 1 / 3.0);
    EXPECT_TRUE(all.words[0] == 0x1234 && all.doubled[0] == 0x12345678 && all.lines.GetHead() == "y");
    EXPECT_TRUE(all.nodes[0] == all.first && all.by_number[9] == all.second && all.by_name["b"] == all.second);
    EXPECT_TRUE(all.time == CTime(12345) && all.rect == CRect(1, 2, 3, 4) && all.line == "line" && !all.none);
}

TEST(AfxDamagedArchive, CutOffAnywhereIsRefused) {
    const std::string whole = everything();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        contents all;
        EXPECT_FALSE(reads(whole.substr(0, length), all)) << length;
    }
}

} // namespace
