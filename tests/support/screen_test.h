// What tests of screens share: a program folder of their own and stand-ins for what screens are handed.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "support/fakes.h"
#include "support/folders.h"
#include "support/matches.h"
#include "support/scripted_random.h"

namespace kickwell {

class ScreenTest : public testing::Test {
 protected:
  void Write(const std::string& file, const std::string& text) const { WriteBytes(folder_ / file, text); }
  std::string Bytes(const std::string& file) const { return ReadBytes(folder_ / file); }
  bool Exists(const std::string& file) const { return std::filesystem::exists(folder_ / file); }

  TestFolder folder_;
  FakeDesktop desktop_;
  FakeRecording recording_;
  FakeScreen screen_;
  QuietRandom random_;
};

}  // namespace kickwell
