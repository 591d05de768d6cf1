// A value or an error, for functions that can fail on what the user or a file gives them.
#pragma once

#include <cassert>
#include <optional>
#include <string>
#include <utility>

namespace kestrav::core
{

/// What went wrong, with which file and line. Texts are UTF-8.
struct Error
{
    std::string message;
    std::string file = {};
    long line = 0; ///< 1-based; 0 when there is none

    /// "file:line: message", without the parts that do not exist.
    [[nodiscard]] std::string text() const
    {
        if (file.empty()) {
            return message;
        }
        std::string place = file;
        if (line > 0) {
            place.append(":").append(std::to_string(line));
        }
        return place + ": " + message;
    }
};

template <typename Value>
class [[nodiscard]] Result
{
public:
    Result(Value value) : value_(std::move(value))
    {}
    Result(Error error) : error_(std::move(error))
    {}

    [[nodiscard]] bool ok() const
    {
        return value_.has_value();
    }
    explicit operator bool() const
    {
        return ok();
    }
    [[nodiscard]] Value& value()
    {
        assert(ok());
        return *value_;
    }
    [[nodiscard]] const Value& value() const
    {
        assert(ok());
        return *value_;
    }
    [[nodiscard]] const Error& error() const
    {
        assert(!ok());
        return error_;
    }

private:
    std::optional<Value> value_;
    Error error_;
};

/// The result of a function that only succeeds or fails.
template <>
class [[nodiscard]] Result<void>
{
public:
    Result() = default;
    Result(Error error) : error_(std::move(error))
    {}

    [[nodiscard]] bool ok() const
    {
        return !error_.has_value();
    }
    explicit operator bool() const
    {
        return ok();
    }
    [[nodiscard]] const Error& error() const
    {
        assert(!ok());
        return *error_;
    }

private:
    std::optional<Error> error_;
};

} // namespace kestrav::core
