// Objects through archives.
#include <afxtempl.h>

#include <gtest/gtest.h>

#include <functional>
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

int cause_of(const std::function<void()>& work) {
    try {
        work();
    } catch (CArchiveException* e) {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    }
    return CArchiveException::none;
}

void store(CMemFile& file, const std::function<void(CArchive&)>& work) {
    file.SetLength(0);
    CArchive ar(&file, CArchive::store, 128);
    work(ar);
    ar.Close();
    file.SeekToBegin();
}

TEST(AfxArchive, KeepsAGraphOfObjects) {
    graph_node a, b;
    a.name = "a";
    b.name = CString('b', 70000);
    a.next = a.other = &b;
    b.next = &a; // a ring
    b.number = -7;
    CMemFile file;
    store(file, [&](CArchive& ar) { ar << &a << &b << static_cast<CObject*>(nullptr); });
    CArchive ar(&file, CArchive::load, 128);
    graph_node *first = nullptr, *second = nullptr, *third = &a;
    ar >> first >> second >> third;
    const std::unique_ptr<graph_node> owned[] = {std::unique_ptr<graph_node>(first),
                                                 std::unique_ptr<graph_node>(second)};
    EXPECT_TRUE(first->next == second && first->other == second && second->next == first && third == nullptr);
    EXPECT_EQ(second->number, -7);
    EXPECT_EQ(second->name.GetLength(), 70000);
    EXPECT_EQ(first->schema, 3u);
}

TEST(AfxArchive, WritesTheKnownFormat) {
    CMemFile file;
    strict_node object;
    store(file, [&](CArchive& ar) { ar << static_cast<WORD>(0x0102) << CString("ab") << &object << &object; });
    BYTE bytes[64];
    const UINT length = file.Read(bytes, sizeof(bytes));
    const BYTE expected[] = {2,   1,   2,   'a', 'b', 0xFF, 0xFF, 1,   0,   11,  0, 's',
                             't', 'r', 'i', 'c', 't', '_',  'n',  'o', 'd', 'e', 2, 0};
    EXPECT_EQ(std::string(bytes, bytes + length), std::string(std::begin(expected), std::end(expected)));
}

TEST(AfxArchive, RefusesWhatDoesNotFit) {
    CMemFile file;
    strict_node object;
    const auto read = [&](const std::function<void(CArchive&)>& work) {
        file.SeekToBegin();
        return cause_of([&] {
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
    file.SetLength(0);
    file.Write("\xFF\xFF\xFF\xFF\xFF\xFF\x7F", 7); // two thousand million characters that are not there
    EXPECT_NE(read([](CArchive& ar) {
                  CString text;
                  ar >> text;
              }),
              CArchiveException::none);
    EXPECT_EQ(read([](CArchive& ar) {
                  CByteArray numbers;
                  numbers.Serialize(ar);
              }),
              CArchiveException::endOfFile);
}

TEST(AfxArchive, CarriesCollections) {
    CMapStringToString map;
    map["one"] = "1";
    map["two"] = "2";
    CObList list;
    strict_node node;
    list.AddTail(&node);
    list.AddTail(&node);
    CArray<CString> names;
    names.Add("x");
    CArray<double, double> numbers;
    for (int i = 0; i < 100; ++i)
        numbers.Add(i / 3.0);
    CMemFile file;
    store(file, [&](CArchive& ar) {
        ar << &map << CTime(12345) << CRect(1, 2, 3, 4);
        list.Serialize(ar);
        names.Serialize(ar);
        numbers.Serialize(ar);
        ar.WriteString("line\r\nnext\n");
    });
    CArchive ar(&file, CArchive::load, 128);
    CMapStringToString* read = nullptr;
    CTime time;
    CRect rect;
    CObList read_list;
    CArray<CString> read_names;
    CArray<double, double> read_numbers;
    ar >> read >> time >> rect;
    const std::unique_ptr<CMapStringToString> owned_map(read);
    read_list.Serialize(ar);
    read_names.Serialize(ar);
    read_numbers.Serialize(ar);
    const std::unique_ptr<CObject> owned_node(read_list.GetHead());
    EXPECT_TRUE(read->GetCount() == 2 && (*read)["two"] == "2" && time == CTime(12345) &&
                ::EqualRect(&rect, CRect(1, 2, 3, 4)));
    EXPECT_TRUE(read_list.GetCount() == 2 && read_list.GetHead() == read_list.GetTail());
    EXPECT_TRUE(read_names[0] == "x" && read_numbers.GetSize() == 100 && read_numbers[99] == 33.0);
    CString line;
    EXPECT_TRUE(ar.ReadString(line) && line == "line" && ar.ReadString(line) && line == "next");
    EXPECT_FALSE(ar.ReadString(line));
}

TEST(AfxArchive, SharesItsFileAfterFlush) {
    CMemFile file;
    store(file, [&](CArchive& ar) {
        ar << 1;
        ar.Flush();
        ar.GetFile()->Write("raw", 3);
        ar << 2;
    });
    CArchive ar(&file, CArchive::load);
    int number = 0;
    char raw[4] = "";
    ar >> number;
    ar.Flush(); // the file stands behind what was read
    EXPECT_EQ(ar.GetFile()->Read(raw, 3), 3u);
    EXPECT_STREQ(raw, "raw");
    ar >> number;
    EXPECT_EQ(number, 2);
}

// What a file with everything in it holds, as bytes.
std::string everything() {
    graph_node a, b;
    a.name = "first";
    a.next = &b;
    b.next = b.other = &a;
    CMapStringToString texts;
    texts["key"] = "value";
    CObList list;
    strict_node strict;
    list.AddTail(&strict);
    list.AddTail(&a);
    CByteArray numbers;
    numbers.Add(5);
    CStringArray names;
    names.Add("one");
    CMemFile file;
    store(file, [&](CArchive& ar) {
        ar << &a << &texts << CString("between");
        list.Serialize(ar);
        numbers.Serialize(ar);
        names.Serialize(ar);
    });
    std::string bytes(static_cast<std::size_t>(file.GetLength()), '\0');
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

// False where the framework's exceptions refuse it. Objects of a file that is refused are lost, as is documented.
bool reads(std::string bytes) {
    CMemFile file(reinterpret_cast<BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
    CObject *first = nullptr, *second = nullptr;
    CString text;
    CObList list;
    CByteArray numbers;
    CStringArray names;
    try {
        CArchive ar(&file, CArchive::load | CArchive::bNoFlushOnDelete, 128);
        ar >> first >> second >> text;
        list.Serialize(ar);
        numbers.Serialize(ar);
        names.Serialize(ar);
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

TEST(AfxDamagedArchive, CutOffAnywhereIsRefused) {
    const std::string whole = everything();
    EXPECT_TRUE(reads(whole));
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(reads(whole.substr(0, length))) << length;
}

TEST(AfxDamagedArchive, WithChangedBytesDoesNoHarm) {
    const std::string whole = everything();
    std::size_t refused = 0;
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (int value = 0; value < 256; value += value < 8 || value > 246 ? 1 : 37) {
            std::string damaged = whole;
            damaged[at] = static_cast<char>(value);
            refused += !reads(damaged);
        }
    }
    EXPECT_GT(refused, whole.size()) << "most bytes matter";
}

} // namespace
