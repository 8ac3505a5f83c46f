// The lists' insertion and walks against memmove of the same bytes and against a std::vector.
#include "compare.h"

#include "controls/wnt_ulist.h"
#include "out/wnt_objlist.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

constexpr int items = 1000;

struct Item {
    int key;
    char data[28];
};

constexpr int record_size = 8 + static_cast<int>(sizeof(Item));
char tag[] = "ITEM";

// Lists freed with themselves.
struct Objlist : CWntObjlist {
    Objlist() { create(nullptr, (items + 1) * record_size); }
    ~Objlist() override { destroy(); }
};
struct Ulist : CWntUlist {
    Ulist() { create(nullptr, sizeof(Item), items + 2); }
    ~Ulist() override { destroy(); }
};

// Every insertion at the front, so that all that is there moves.
void fill(CWntObjlist& list) {
    list.flush();
    for (Item item{}; item.key < items; ++item.key) {
        list.seek(1, 0);
        list.insertitem(tag, sizeof item, &item);
    }
}
void fill(CWntUlist& list) {
    list.flush();
    list.seek(1, 0);
    for (Item item{}; item.key < items; ++item.key)
        list.insertitem(&item);
}
void fill(std::vector<Item>& vector) {
    vector.clear();
    for (Item item{}; item.key < items; ++item.key)
        vector.insert(vector.begin(), item);
}

// Bytes as a list moves them, without a list.
template <int stride> struct Bytes { std::vector<char> buffer = std::vector<char>((items + 1) * stride); };
template <int stride> void fill(Bytes<stride>& bytes) {
    std::memset(bytes.buffer.data(), 0, bytes.buffer.size());
    char* to = bytes.buffer.data() + (stride - sizeof(Item));
    for (Item item{}; item.key < items; ++item.key) {
        std::memmove(bytes.buffer.data() + stride, bytes.buffer.data(), static_cast<std::size_t>(item.key) * stride);
        std::memcpy(to, &item, sizeof item);
    }
}

long walk(CWntObjlist& list) {
    long sum = 0;
    list.seek(1, 0);
    while (const auto* item = static_cast<char*>(list.nextitem(tag))) {
        int key;
        std::memcpy(&key, item, sizeof key);
        sum += key;
    }
    return sum;
}
long walk(CWntUlist& list) {
    long sum = 0;
    list.seek(1, 0);
    while (const auto* item = static_cast<Item*>(list.nextitem()))
        sum += item->key;
    return sum;
}
long walk(std::vector<Item>& vector) {
    long sum = 0;
    for (const Item& item : vector) {
        sum += item.key;
        benchmark::DoNotOptimize(&item);
    }
    return sum;
}

template <class List, class Yardstick> void insert_first(benchmark::State& state) {
    List list;
    Yardstick yardstick;
    compare(
        state, items, [&] { fill(list); },
        [&] {
            fill(yardstick);
            benchmark::ClobberMemory();
        });
}
BENCHMARK(insert_first<Objlist, Bytes<record_size>>)->Name("insert_first/objlist/memmove");
BENCHMARK(insert_first<Objlist, std::vector<Item>>)->Name("insert_first/objlist/vector");
BENCHMARK(insert_first<Ulist, Bytes<sizeof(Item)>>)->Name("insert_first/ulist/memmove");
BENCHMARK(insert_first<Ulist, std::vector<Item>>)->Name("insert_first/ulist/vector");

template <class List> void walk_all(benchmark::State& state) {
    List list;
    std::vector<Item> vector;
    fill(list);
    fill(vector);
    if (walk(list) != walk(vector)) {
        std::fputs("lists_bench: a walk did not see every item\n", stderr);
        std::exit(1);
    }
    compare(
        state, items, [&] { benchmark::DoNotOptimize(walk(list)); }, [&] { benchmark::DoNotOptimize(walk(vector)); });
}
BENCHMARK(walk_all<Objlist>)->Name("walk_all/objlist/vector");
BENCHMARK(walk_all<Ulist>)->Name("walk_all/ulist/vector");

} // namespace

BENCHMARK_MAIN();
