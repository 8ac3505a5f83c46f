#include "afxcoll.h"

IMPLEMENT_SERIAL(CByteArray, CObject, 0)
IMPLEMENT_SERIAL(CWordArray, CObject, 0)
IMPLEMENT_SERIAL(CDWordArray, CObject, 0)
IMPLEMENT_DYNAMIC(CUIntArray, CObject)
IMPLEMENT_DYNAMIC(CPtrArray, CObject)
IMPLEMENT_SERIAL(CObArray, CObject, 0)
IMPLEMENT_SERIAL(CStringArray, CObject, 0)
IMPLEMENT_DYNAMIC(CPtrList, CObject)
IMPLEMENT_SERIAL(CObList, CObject, 0)
IMPLEMENT_SERIAL(CStringList, CObject, 0)
IMPLEMENT_DYNAMIC(CMapWordToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToWord, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToPtr, CObject)
IMPLEMENT_SERIAL(CMapWordToOb, CObject, 0)
IMPLEMENT_DYNAMIC(CMapStringToPtr, CObject)
IMPLEMENT_SERIAL(CMapStringToOb, CObject, 0)
IMPLEMENT_SERIAL(CMapStringToString, CObject, 0)

namespace {

// A count, then each element. What was read is added one by one: a wrong count ends with the file.
template <class Item, class Store, class Add> void serialize(CArchive& ar, INT_PTR count, Store store_all, Add add) {
    if (ar.IsStoring()) {
        ar.WriteCount(static_cast<DWORD_PTR>(count));
        store_all();
        return;
    }
    for (DWORD_PTR left = ar.ReadCount(); left > 0; --left) {
        Item item{};
        ar >> item;
        add(item);
    }
}

template <class Item, class Array> void serialize_array(CArchive& ar, Array& array) {
    if (ar.IsLoading())
        array.RemoveAll();
    serialize<Item>(
        ar, array.GetSize(),
        [&] {
            for (INT_PTR i = 0; i < array.GetSize(); ++i)
                ar << array[i];
        },
        [&](const Item& item) { array.Add(item); });
}

template <class Item, class List> void serialize_list(CArchive& ar, List& list) {
    serialize<Item>(
        ar, list.GetCount(),
        [&] {
            for (POSITION at = list.GetHeadPosition(); at != nullptr;)
                ar << list.GetNext(at);
        },
        [&](const Item& item) { list.AddTail(item); });
}

template <class Key, class Value, class Map> void serialize_map(CArchive& ar, Map& map) {
    serialize<Key>(
        ar, map.GetCount(),
        [&] {
            Key key{};
            Value value{};
            for (POSITION at = map.GetStartPosition(); at != nullptr;) {
                map.GetNextAssoc(at, key, value);
                ar << key << value;
            }
        },
        [&](const Key& key) {
            Value value{};
            ar >> value;
            map.SetAt(key, value);
        });
}

} // namespace

void CByteArray::Serialize(CArchive& ar) {
    serialize_array<BYTE>(ar, *this);
}

void CWordArray::Serialize(CArchive& ar) {
    serialize_array<WORD>(ar, *this);
}

void CDWordArray::Serialize(CArchive& ar) {
    serialize_array<DWORD>(ar, *this);
}

void CObArray::Serialize(CArchive& ar) {
    serialize_array<CObject*>(ar, *this);
}

void CStringArray::Serialize(CArchive& ar) {
    serialize_array<CString>(ar, *this);
}

void CObList::Serialize(CArchive& ar) {
    serialize_list<CObject*>(ar, *this);
}

void CStringList::Serialize(CArchive& ar) {
    serialize_list<CString>(ar, *this);
}

void CMapWordToOb::Serialize(CArchive& ar) {
    serialize_map<WORD, CObject*>(ar, *this);
}

void CMapStringToOb::Serialize(CArchive& ar) {
    serialize_map<CString, CObject*>(ar, *this);
}

void CMapStringToString::Serialize(CArchive& ar) {
    serialize_map<CString, CString>(ar, *this);
}
