// On macOS the fixed paths of the system lie at its root. Here nothing of ours can: they lie below
// a folder of the test, which the environment variable TRX_SYSTEM_ROOT names.
#import <Foundation/Foundation.h>

/// The path at which what macOS has at a fixed path is found; any other path as it is.
NSString *PathBelowSystemRoot(NSString *path);
