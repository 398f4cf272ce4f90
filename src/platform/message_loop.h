// The message loop of the one thread that there is. Long jobs yield to it, so that other events can
// run in the middle of them.
#pragma once

namespace vorlane {

class MessageLoop {
 public:
  virtual ~MessageLoop() = default;

  // Lets waiting events run. Called very often, from inner loops too: an implementation has to make
  // it cheap.
  virtual void Yield() = 0;

  // The same, but sleeps for up to that long until an event comes. For polls that have nothing to
  // do but wait.
  virtual void YieldBlocking(int /*milliseconds*/) { Yield(); }
};

}  // namespace vorlane
