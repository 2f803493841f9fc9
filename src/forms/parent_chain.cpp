// Follows Parents without exceptions, since every chain ends in an error.
#include "forms/parent_chain.h"

#include "shared/vb_number.h"

namespace tarrowin {

namespace {

// Runs a conversion of a value that was read.
template <class Result, class Convert>
Result converted(const Reading& reading, const ParentChain::OnError& onError, Convert convert) {
  if (reading.error) {
    onError(*reading.error);
    return {};
  }
  try {
    return convert(reading.value);
  } catch (const VbError& error) {
    onError(error);
    return {};
  }
}

}  // namespace

ParentChain::ParentChain(const LateBound& ctl, std::size_t links) {
  const LateBound* below = &ctl;
  for (std::size_t i = 0; i < links; ++i) {
    Reading parent = below->tryGet("Parent");
    if (!parent.error && !parent.value.object()) {
      parent.error = VbError::standard(kErrObjectRequired);
    }
    if (parent.error) {
      broken_ = std::move(parent.error);
      return;
    }
    links_[i] = LateBound(parent.value.object());
    below = &links_[i];
  }
}

Reading ParentChain::read(std::size_t link, std::string_view member) const {
  if (!links_[link]) return {{}, broken_};
  return links_[link].tryGet(member);
}

std::string ParentChain::text(std::size_t link, std::string_view member,
                              const OnError& onError) const {
  return converted<std::string>(read(link, member), onError,
                                [](const Value& value) { return joined(value); });
}

std::int32_t ParentChain::number(std::size_t link, std::string_view member,
                                 const OnError& onError) const {
  return converted<std::int32_t>(read(link, member), onError, toLong);
}

std::int16_t ParentChain::integer(std::size_t link, std::string_view member,
                                  const OnError& onError) const {
  return converted<std::int16_t>(read(link, member), onError, toInteger);
}

}  // namespace tarrowin
