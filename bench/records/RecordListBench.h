#pragma once
// The four measurements of a list record against cJSON alone, shared by the record
// benchmarks: parse the printed list, parse and read it into records, print the parsed
// tree, write the records and print them.
#include <benchmark/benchmark.h>
#include <cjson/cJSON.h>

#include <cstdint>
#include <string>

namespace recordbench {

// The list as cJSON prints it.
template <class List>
std::string printedText(List list)
{
    cJSON* json = list.toJSON();
    char* printed = cJSON_Print(json);
    std::string result = printed;
    cJSON_free(printed);
    cJSON_Delete(json);
    return result;
}

inline void parseOnly(benchmark::State& state, const std::string& text)
{
    for (auto _ : state) {
        cJSON* json = cJSON_Parse(text.c_str());
        benchmark::DoNotOptimize(json);
        cJSON_Delete(json);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}

template <class List>
void parseAndRead(benchmark::State& state, const std::string& text)
{
    for (auto _ : state) {
        cJSON* json = cJSON_Parse(text.c_str());
        List list(json);
        benchmark::DoNotOptimize(&list);
        benchmark::ClobberMemory();
        cJSON_Delete(json);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}

inline void printOnly(benchmark::State& state, const std::string& text)
{
    cJSON* json = cJSON_Parse(text.c_str());
    for (auto _ : state) {
        char* printed = cJSON_Print(json);
        benchmark::DoNotOptimize(printed);
        cJSON_free(printed);
    }
    cJSON_Delete(json);
}

// The same tree built by cJSON's own code (cJSON_Duplicate of the parsed text, every node,
// key and string allocated), printed and deleted: what a tree of this shape costs cJSON.
inline void copyTreeAndPrint(benchmark::State& state, const std::string& text)
{
    cJSON* json = cJSON_Parse(text.c_str());
    for (auto _ : state) {
        cJSON* copy = cJSON_Duplicate(json, 1);
        char* printed = cJSON_Print(copy);
        benchmark::DoNotOptimize(printed);
        cJSON_free(printed);
        cJSON_Delete(copy);
    }
    cJSON_Delete(json);
}

template <class List>
void writeAndPrint(benchmark::State& state, List& list)
{
    for (auto _ : state) {
        cJSON* json = list.toJSON();
        char* printed = cJSON_Print(json);
        benchmark::DoNotOptimize(printed);
        cJSON_free(printed);
        cJSON_Delete(json);
    }
}

} // namespace recordbench
