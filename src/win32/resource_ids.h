// Numbers of the resources that only the windows know. Defines, since the resource compiler reads them too; those of
// commands come to it from platform/command.h.
#pragma once

#define RESOURCE_PROGRAM_ICON 1
#define RESOURCE_MAIN_MENU 900
#define RESOURCE_TREE_AND_LIST_KEYS 901
#define RESOURCE_RICH_EDIT_KEYS 902

// Strips of images for 100, 150 and 200 percent.
#define RESOURCE_TOOLBAR_IMAGES 911
#define RESOURCE_TOOLBAR_IMAGES_150 912
#define RESOURCE_TOOLBAR_IMAGES_200 913
#define RESOURCE_ITEM_IMAGES 921
#define RESOURCE_ITEM_IMAGES_150 922
#define RESOURCE_ITEM_IMAGES_200 923
