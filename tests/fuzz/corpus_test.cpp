#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "fuzz/target.h"
#include "support/checkout.h"

// What has been found once stands in corpus/ and is read here for good, with changes of it.

namespace grapplemont::fuzz {
namespace {

namespace fs = std::filesystem;

struct Case {
  std::string Name;
  Bytes Contents;
};

std::vector<Case> CorpusOf(const Target& target) {
  const fs::path folder = test::Checkout("/tests/fuzz/corpus/" + std::string(target.Name));
  std::vector<Case> cases{{"nothing", {}}};
  for (const auto& entry : fs::directory_iterator(folder)) {
    std::ifstream in(entry.path(), std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), {}};
    const ByteSpan bytes = BytesIn(text);
    cases.push_back({entry.path().filename().string(), {bytes.begin(), bytes.end()}});
  }
  std::ranges::sort(cases, {}, &Case::Name);
  return cases;
}

std::vector<std::string> WordsOf(const Target& target) {
  const std::string path =
      test::Checkout("/tests/fuzz/dictionaries/" + std::string(target.Name) + ".dict");
  return fs::exists(path) ? ReadDictionary(path) : std::vector<std::string>();
}

/// How many changes are tried; FUZZ_CASES stands for the number that a target names.
int CasesOf(const Target& target) {
  const char* wanted = std::getenv("FUZZ_CASES");
  return wanted ? std::atoi(wanted) : target.Cases;
}

/// The bytes as a program can take them again: printf has this form.
std::string Escaped(ByteSpan bytes) {
  std::string text;
  for (const std::byte byte : bytes) {
    char hex[8];
    std::snprintf(hex, sizeof hex, "\\x%02x", std::to_integer<unsigned>(byte));
    text += hex;
  }
  return text;
}

/// False once there is a finding; it is told with the bytes that lead to it.
bool Stands(const Target& target, const std::string& name, const Bytes& bytes) {
  try {
    target.Run(bytes);
    return true;
  } catch (const std::exception& fault) {
    ADD_FAILURE() << name << ": " << fault.what() << "\n" << Escaped(bytes);
    return false;
  }
}

class Reader : public testing::TestWithParam<Target> {};

TEST_P(Reader, StandsItsCorpusAndChangesOfIt) {
  const Target& target = GetParam();
  const std::vector<Case> corpus = CorpusOf(target);
  ASSERT_GT(corpus.size(), 1u) << "a target begins with cases of its own";
  for (const Case& each : corpus)
    if (!Stands(target, each.Name, each.Contents)) return;
  const std::vector<std::string> words = WordsOf(target);
  std::mt19937_64 chance(2026);
  const auto any = [&]() -> const Case& { return corpus[chance() % corpus.size()]; };
  for (int i = CasesOf(target); i > 0; --i) {
    const Case& from = any();
    Bytes bytes = from.Contents;
    const std::uint64_t seed = chance();
    if (target.Change && i % 2 == 0)
      target.Change(bytes, target.Most, seed);
    else
      ChangeBytes(bytes, target.Most, seed, words, any().Contents);
    if (!Stands(target, from.Name + ", changed by " + std::to_string(seed), bytes)) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Of, Reader, testing::ValuesIn(Targets()),
                         [](const auto& of) { return std::string(of.param.Name); });

}  // namespace
}  // namespace grapplemont::fuzz
