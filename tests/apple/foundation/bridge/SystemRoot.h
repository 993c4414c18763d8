// On macOS the fixed paths begin at the root folder. Here they are below a folder of the test,
// which the environment variable TRX_SYSTEM_ROOT names.
#import <Foundation/Foundation.h>

/// The real path for a fixed path of macOS; any other path unchanged.
NSString *PathBelowSystemRoot(NSString *path);
