// A flag that is set for the length of a block.
#pragma once

namespace tarnvik {

// Sets the flag and puts back what it was, whatever ends the block: blocks may nest.
class FlagScope {
 public:
  explicit FlagScope(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
  ~FlagScope() { flag_ = before_; }
  FlagScope(const FlagScope&) = delete;
  FlagScope& operator=(const FlagScope&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace tarnvik
