// A reference to something that can be called, for parameters that are only used during a call.
#pragma once

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace kestrav::timing
{

template <typename Signature>
class FunctionRef;

/// Two pointers: the callable and how to call it. Unlike std::function it owns nothing, so it must
/// not outlive the callable; it is meant for parameters only. The callable is an object, such as a
/// lambda, not the name of a function.
template <typename Result, typename... Arguments>
class FunctionRef<Result(Arguments...)>
{
public:
    template <typename Callable, typename = std::enable_if_t<
                                     !std::is_same_v<std::remove_cvref_t<Callable>, FunctionRef> &&
                                     std::is_object_v<std::remove_reference_t<Callable>> &&
                                     std::is_invocable_r_v<Result, Callable&, Arguments...>>>
    FunctionRef(Callable&& callable)
        : object_(const_cast<void*>(static_cast<const void*>(std::addressof(callable)))),
          call_([](void* object, Arguments... arguments) -> Result {
              return std::invoke(*static_cast<std::remove_reference_t<Callable>*>(object),
                                 std::forward<Arguments>(arguments)...);
          })
    {}

    Result operator()(Arguments... arguments) const
    {
        return call_(object_, std::forward<Arguments>(arguments)...);
    }

private:
    void* object_;
    Result (*call_)(void*, Arguments...);
};

} // namespace kestrav::timing
