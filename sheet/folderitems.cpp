#include "sheet/folderitems.h"

#include "platform/trelmic6.h"
#include "sheet/itemtext.h"

namespace vorlane {

int32_t AddFolderItems(ListBox& list, FileListBox& reader, const std::string& folder, int32_t insertBefore,
                       const FolderRules& rules) {
    if (!Trelmic6::PathExists(folder, PathKind::Folder)) return 0;
    const std::string path = Trelmic6::NormalizePath(folder);
    reader.Read(path, rules.Pattern);
    int32_t added = 0;
    int32_t key = -1;
    bool cancel = false;
    for (int32_t i = 0; i < reader.ListCount(); ++i) {
        const std::string name = reader.List(i);
        if (!MatchesPattern(name, rules.Pattern)) continue;
        if (rules.Offer) rules.Offer(path + name, key, cancel);
        if (cancel) continue;
        if (rules.Adding) rules.Adding();
        const std::string text = ItemText(rules.SortKey(path + name), path + name);
        insertBefore >= 0 ? list.AddItem(text, insertBefore++) : list.AddItem(text);
        ++added;
        if (key == -1) key = list.NewIndex();
        list.SetItemData(list.NewIndex(), key);
    }
    return added;
}

}  // namespace vorlane
