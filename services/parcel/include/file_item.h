#ifndef FILE_ITEM_H
#define FILE_ITEM_H

#include <cstdint>
#include <string>

namespace OHOS {
namespace Zelkon {

// A file as the share services describe it to each other; the library carries it only inside a SendBean.
struct FileItem {
    std::string uri;
    std::string name;
    int64_t size = 0;
};

} // namespace Zelkon
} // namespace OHOS

#endif // FILE_ITEM_H
