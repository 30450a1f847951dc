#ifndef IOSPHOTO_REPEATED_TEXT_H
#define IOSPHOTO_REPEATED_TEXT_H

#include <QString>

#include <cstring>
#include <string>

namespace iosphoto {

/// Makes texts of a column whose neighbouring rows mostly hold the same, so that they share one.
class RepeatedText
{
public:
    /// @param utf8  a null pointer gives an empty text
    QString of(const char *utf8)
    {
        if (utf8 == nullptr)
            return {};
        if (text_.isNull() || std::strcmp(utf8, utf8_.c_str()) != 0) {
            text_ = QString::fromUtf8(utf8);
            utf8_ = utf8;
        }
        return text_;
    }

private:
    std::string utf8_;
    QString text_;
};

} // namespace iosphoto

#endif // IOSPHOTO_REPEATED_TEXT_H
