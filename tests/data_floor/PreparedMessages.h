// Answers prepared by a test, and what was shown.
#pragma once

#include "core/Messages.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

namespace kestrav::data
{

class PreparedMessages : public core::Messages
{
public:
    struct Shown
    {
        std::wstring caption;
        std::wstring text;
        core::Buttons buttons;
    };

    explicit PreparedMessages(std::deque<core::Answer> answers = {}) : answers_(std::move(answers))
    {}
    ~PreparedMessages() override
    {
        EXPECT_TRUE(answers_.empty()) << answers_.size() << " questions were not asked";
    }
    PreparedMessages(const PreparedMessages&) = delete;
    PreparedMessages& operator=(const PreparedMessages&) = delete;

    core::Answer show(const std::wstring& caption, const std::wstring& text,
                      core::Buttons buttons) override
    {
        shown.push_back({caption, text, buttons});
        if (buttons == core::Buttons::Ok) {
            return core::Answer::Ok;
        }
        if (answers_.empty()) {
            ADD_FAILURE() << "an unexpected question";
            return core::Answer::Cancel;
        }
        const core::Answer answer = answers_.front();
        answers_.pop_front();
        return answer;
    }

    /// Takes the only message so far, which must have this caption and text.
    void expectOne(const std::wstring& caption, const std::wstring& text)
    {
        ASSERT_EQ(shown.size(), 1U);
        EXPECT_EQ(shown[0].caption, caption);
        EXPECT_EQ(shown[0].text, text);
        shown.clear();
    }

    std::vector<Shown> shown;

private:
    std::deque<core::Answer> answers_;
};

} // namespace kestrav::data
