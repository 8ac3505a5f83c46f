#include "controls/wnt_ulist.h"
#include "out/wnt_objlist.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstring>
#include <numeric>
#include <random>

namespace {

// Lists that free what they hold, as their own destructors do not.
template <class List> struct Held : List {
    ~Held() override { this->destroy(); }
};

// What every list ends with: destroyed twice, and where the call arrives no object at all.
template <class List> void expect_refusals(List& list, auto refuses_all, auto create) {
    for (int i = 0; i < 2; ++i)
        list.destroy();
    EXPECT_TRUE(refuses_all(&list));
#ifdef _WIN32 // elsewhere the sanitizer ends the call before the object is asked
    List* volatile none = nullptr;
    EXPECT_TRUE(refuses_all(none) && create(none) == 0 && none->flush() == 0 && none->seek(1, 0) == 0);
    EXPECT_EQ(none->queryitemno(), -1);
    none->destroy();
#endif
}

struct Dice {
    std::mt19937 random;
    int operator()(int lowest, int highest) { return std::uniform_int_distribution(lowest, highest)(random); }
};

// A record as the list packs it.
std::string record(std::string tag, const std::string& data) {
    const auto length = static_cast<std::uint32_t>(data.size());
    return tag.append(reinterpret_cast<const char*>(&length), 4) + data;
}

// Many random operations on the list and on a vector of records; after each one every byte is compared.
void compare_objlist(unsigned seed) {
    constexpr int size = 256;
    Held<CWntObjlist> list;
    list.create(nullptr, size);
    std::vector<std::string> model;
    const auto packed = [&](std::size_t count) {
        return std::accumulate(model.begin(), model.begin() + static_cast<std::ptrdiff_t>(count), std::string());
    };
    std::size_t cursor = 0;
    const auto place = [&] { return model.begin() + static_cast<std::ptrdiff_t>(cursor); };
    const auto tag_here = [&] { return cursor < model.size() ? model[cursor].substr(0, 4) : "none"; };
    const auto data_here = [&] { return cursor < model.size() ? model[cursor].substr(8) : ""; };
    bool atstart = false;
    Dice dice{std::mt19937(seed)};
    for (int i = 0; i < 2000 && !testing::Test::HasFailure(); ++i) {
        char key[][5] = {"ABCD", "AB", "B", ""};
        char* const text = key[dice(0, 3)];
        const std::string tag(text, 4);
        std::string data(dice(0, 30), static_cast<char>(dice(0, 255)));
        const int length = static_cast<int>(data.size());
        if (dice(0, 99) == 0 && list.flush())
            model.clear(), cursor = 0;
        const bool fits = size - packed(model.size()).size() > data.size() + 8;
        switch (dice(0, 6)) {
        case 0:
            EXPECT_EQ(list.additem(text, length, data.data()), fits && length > 0);
            if (fits && length > 0)
                model.push_back(record(tag, data));
            break;
        case 1:
            EXPECT_EQ(list.insertitem(text, length, data.data()), fits ? 0 : -1);
            if (fits)
                model.insert(place(), record(tag, data)), ++cursor;
            break;
        case 2: {
            const bool taken = !data_here().empty();
            EXPECT_EQ(list.deleteitem(), taken);
            if (taken)
                model.erase(place());
            break;
        }
        case 3: {
            const int where = dice(0, 3);
            EXPECT_EQ(list.seek(where, 0), 1);
            atstart = atstart || where == 1;
            cursor = where == 1 ? 0 : where == 2 ? model.size() : cursor;
            break;
        }
        case 4:
        case 5: {
            bool found = cursor == 0 && atstart && tag_here() == tag;
            atstart = atstart && !found;
            for (bool ended = found || cursor == model.size(); !ended;) {
                ++cursor;
                found = tag_here() == tag;
                ended = found || data_here().empty() || tag_here() == std::string(4, '\0');
            }
            EXPECT_EQ(list.nextitem(text), found ? list.buffer + packed(cursor).size() + 8 : nullptr);
            break;
        }
        default: {
            const bool same = tag_here() == tag;
            EXPECT_EQ(list.updateitem(text, length, data.data()), same);
            if (same && data_here().size() == data.size())
                model[cursor] = record(tag, data);
            std::string out(40, '\0'), expected = same ? data_here().substr(0, length) : "";
            expected.resize(out.size());
            EXPECT_TRUE(list.readitem(text, length, out.data()) == same && out == expected);
        }
        }
        std::string all = packed(model.size());
        ASSERT_EQ(list.end - list.buffer, static_cast<std::ptrdiff_t>(all.size()));
        all.resize(size); // what is free is zero
        ASSERT_EQ(std::string(reinterpret_cast<char*>(list.buffer), size), all);
        ASSERT_EQ(list.cursor - list.buffer, static_cast<std::ptrdiff_t>(packed(cursor).size()));
        ASSERT_EQ(list.queryitemno(), static_cast<int>(model.size()));
    }
}

TEST(Objlist, DoesWhatAVectorOfRecordsDoes) {
    for (unsigned seed = 1; seed <= 20; ++seed)
        compare_objlist(seed);
}

TEST(Objlist, RefusesMisuse) {
    char key[] = "A", data[16] = {};
    Held<CWntObjlist> list;
    const auto refuses_all = [&](CWntObjlist* each) {
        return each->additem(key, 4, data) == 0 && each->insertitem(key, 4, data) == -1 && each->deleteitem() == 0 &&
               !each->nextitem(key) && each->readitem(key, 4, data) == 0 && each->updateitem(key, 4, data) == 0;
    };
    EXPECT_EQ(list.create(nullptr, -1), 0);
    EXPECT_TRUE(refuses_all(&list));
    const auto create = [](CWntObjlist* each) { return each->create(nullptr, 100); };
    ASSERT_TRUE(create(&list) == 1 && create(&list) == 1); // the second frees what the first made
    ASSERT_TRUE(list.additem(key, 4, data) == 1 && !list.previousitem(key));
    for (int length : {-1, INT_MIN, INT_MAX})
        EXPECT_TRUE(list.additem(key, length, data) == 0 && list.insertitem(key, length, data) == -1) << length;
    EXPECT_TRUE(list.additem(nullptr, 4, data) == 0 && list.insertitem(key, 4, nullptr) == -1);
    EXPECT_TRUE(list.readitem(key, -1, data) == 0 && list.readitem(key, 4, nullptr) == 0 && !list.nextitem(nullptr));

    // Lengths that lead out of the list, and cursors that stand outside.
    for (std::uint32_t length : {5u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        std::memcpy(list.buffer + 4, &length, sizeof length);
        list.seek(1, 0);
        EXPECT_TRUE(!list.nextitem(key) && list.deleteitem() == 0 && list.readitem(key, 4, data) == 0) << length;
    }
    list.flush();
    auto* const foreign = reinterpret_cast<std::uint8_t*>(data);
    for (std::uint8_t* cursor : {static_cast<std::uint8_t*>(nullptr), list.buffer + 1, foreign, list.buffer + 100}) {
        list.cursor = cursor;
        EXPECT_TRUE(list.insertitem(key, 4, data) == -1 && list.deleteitem() == 0 && !list.nextitem(key));
    }
    expect_refusals(list, refuses_all, create);
}

using Item = std::array<char, 3>; // an odd size, so that slots are not aligned

// The same for items. The model keeps every slot, in use or not, and the spare one.
void compare_ulist(unsigned seed) {
    constexpr int capacity = 7;
    Held<CWntUlist> list;
    list.create(nullptr, sizeof(Item), capacity);
    std::vector<Item> slots(capacity + 1);
    int count = 0, cursor = 0;
    const auto holds = [&](int index) { return 0 <= index && index < count; };
    const auto at = [&](int index) -> void* { return list.buffer + index * static_cast<int>(sizeof(Item)); };
    Dice dice{std::mt19937(seed)};
    for (int i = 0; i < 2000 && !testing::Test::HasFailure(); ++i) {
        Item item{static_cast<char>(dice(0, 255)), static_cast<char>(dice(0, 255)), 1}, out = item;
        const int index = dice(-2, capacity + 2);
        switch (dice(0, 7)) {
        case 0:
            EXPECT_EQ(list.additem(&item), count < capacity ? count : -1);
            if (count < capacity)
                slots[count++] = item;
            break;
        case 1: {
            const bool taken = count < capacity - 1 && 0 <= cursor && cursor < capacity;
            EXPECT_EQ(list.insertitem(&item), taken ? count + 1 : -1);
            for (int each = count; taken && each > cursor; --each)
                slots[each] = slots[each - 1];
            if (taken)
                slots[cursor] = item;
            count += taken;
            break;
        }
        case 2: {
            const bool taken = count > 0 && cursor >= 0;
            EXPECT_EQ(list.deleteitem(), taken);
            for (int each = cursor; taken && each < count - 1; ++each)
                slots[each] = slots[each + 1];
            if (taken)
                slots[count--] = {};
            break;
        }
        case 3: {
            const int mode = dice(0, 3);
            EXPECT_EQ(list.seek(mode, index), 1);
            const int moved = holds(cursor + index) && mode == 0 ? cursor + index : cursor;
            cursor = mode == 1 ? index : mode == 2 ? count : moved;
            break;
        }
        case 4:
            EXPECT_EQ(list.nextitem(), holds(cursor) ? at(cursor++) : nullptr);
            break;
        case 5:
            EXPECT_EQ(list.previousitem(), 1 <= cursor && cursor <= capacity ? at(cursor) : nullptr);
            cursor -= cursor >= 1;
            break;
        case 6:
            EXPECT_EQ(list.updateitem(&item), holds(cursor));
            if (holds(cursor))
                slots[cursor] = item;
            break;
        default:
            EXPECT_EQ(list.mkptr(index), holds(index) ? at(index) : nullptr);
            EXPECT_EQ(list.readitem(), holds(cursor) ? at(cursor) : nullptr);
            EXPECT_EQ(list.getitem(&out, index), holds(index));
            EXPECT_EQ(out, holds(index) ? slots[index] : item);
        }
        ASSERT_TRUE(list.queryitemno() == count && list.cursor == cursor);
        ASSERT_EQ(std::memcmp(list.buffer, slots.data(), slots.size() * sizeof(Item)), 0);
    }
}

TEST(Ulist, DoesWhatAVectorOfItemsDoes) {
    for (unsigned seed = 1; seed <= 20; ++seed)
        compare_ulist(seed);
}

TEST(Ulist, RefusesMisuse) {
    char item[8] = {};
    Held<CWntUlist> list;
    const auto refuses_all = [&](CWntUlist* each) {
        return each->additem(item) == -1 && each->insertitem(item) == -1 && each->deleteitem() == 0 &&
               each->getitem(item, 0) == 0 && !each->mkptr(0) && !each->readitem() && !each->nextitem() &&
               !each->previousitem() && each->updateitem(item) == 0;
    };
    const int refused[][2] = {{-1, 4}, {4, -1}, {-4, -4}, {65536, 65536}, {INT_MAX, 2}, {INT_MIN, INT_MIN}};
    for (const auto& [size, capacity] : refused)
        EXPECT_TRUE(list.create(nullptr, size, capacity) == 0 && refuses_all(&list)) << size << " x " << capacity;
    const auto create = [](CWntUlist* each) { return each->create(nullptr, 8, 4); };
    ASSERT_TRUE(create(&list) == 1 && create(&list) == 1);
    EXPECT_TRUE(list.additem(nullptr) == -1 && list.insertitem(nullptr) == -1 && list.additem(item) == 0 &&
                list.updateitem(nullptr) == 0 && list.getitem(nullptr, 0) == 0);
    for (int end : {INT_MIN, INT_MAX}) {
        list.seek(1, end);
        list.seek(0, end); // the sum is beyond 32 bits
        EXPECT_TRUE(list.insertitem(item) == -1 && !list.previousitem() && !list.nextitem()) << end;
    }
    list.seek(1, 2);
    EXPECT_TRUE(list.flush() == 1 && list.cursor == 2 && list.queryitemno() == 0);
    expect_refusals(list, refuses_all, create);
}

} // namespace
