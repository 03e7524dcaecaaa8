// The fixture of every suite that runs the component: a fresh headless host
// per test (its own apartment, environment, form and surface), with helpers
// to type keys, pump the event loop, read the drawing log and check errors.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "headless/session.hpp"

namespace ferlan::testing {

class SessionTest : public ::testing::Test {
 protected:
  // Queues a key script for the next waits; gives how many items it queued.
  // A bad script fails the test and queues nothing.
  std::size_t Type(std::string_view script);
  // Lets `ms` of virtual time pass through DoEvents, with no key.
  void Pump(int ms = 1);
  // The Dessin calls since the last look, one a line ("EffaceRect 0 0 ...").
  std::string TakeLog() { return session.Recorder().TakeLogText(); }
  // "source: text" of each report since the last look (the number alone for a code).
  std::vector<std::string> TakeReports();

  kit::EnvState& Env() { return session.Env(); }
  forms::Form& Form() { return session.Form(); }
  forms::PictureBox& Zone() { return session.Surface(); }

  // On a failure, the key scripts typed so far are printed.
  void TearDown() override;

  headless::Session session;
  std::vector<std::string> typed_;
};

// Sets Left, Top, Width and Height, in that order.
template <class Shape>
void Place(Shape& shape, Single left, Single top, Single width, Single height) {
  shape.SetLeft(left);
  shape.SetTop(top);
  shape.SetWidth(width);
  shape.SetHeight(height);
}

// Runs `fn`, which must raise the platform error `number`, with the
// description `text` when one is given. Failures name the caller's line.
void ExpectPlatformError(const std::function<void()>& fn, Long number,
                         std::string_view text = {}, const char* file = __builtin_FILE(),
                         int line = __builtin_LINE());

}  // namespace ferlan::testing
