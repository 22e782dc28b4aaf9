#ifndef UTILS_NOCOPYABLE_H
#define UTILS_NOCOPYABLE_H

namespace OHOS {

#define DISALLOW_COPY_AND_MOVE(className)                                                                              \
    className(const className&) = delete;                                                                              \
    className& operator=(const className&) = delete;                                                                   \
    className(className&&) = delete;                                                                                   \
    className& operator=(className&&) = delete

#define DISALLOW_COPY(className)                                                                                       \
    className(const className&) = delete;                                                                              \
    className& operator=(const className&) = delete

#define DISALLOW_MOVE(className)                                                                                       \
    className(className&&) = delete;                                                                                   \
    className& operator=(className&&) = delete

class NoCopyable {
protected:
    NoCopyable() = default;
    virtual ~NoCopyable() = default;

private:
    DISALLOW_COPY_AND_MOVE(NoCopyable);
};

} // namespace OHOS

#endif // UTILS_NOCOPYABLE_H
