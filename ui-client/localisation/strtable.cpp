// The string table: constant rows of key and English text, addressed by id.
#include "strtable.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QLatin1String>

namespace StrTable {
namespace {

constexpr int kRowCount = 600;

struct Row {
    const char* key;
    const char* text;  // English, UTF-8; the source text of every catalogue
};

// Rows in id order. A text may carry "%1"/"%2" arguments, "&" accelerators,
// installer markup ("[ProductName]", a "{\Style}" prefix) and the two-character
// sequences backslash-n and backslash-t. Rows share a text only where every
// language can use one translation in all of them: the catalogues are keyed
// by the English text alone.
// One row per line: the table is data.
// clang-format off
constexpr Row kRows[kRowCount] = {
    {"wizard_ssl_change_sync_folder_warning", "The server's certificate has changed since the last connection."},  // 0
    {"msi_button_cancel", "Cancel"},  // 1
    {"err_create_session_fail", "The sync task could not be created. Check the connection to the server and try again."},  // 2
    {"main_queue_column_file", "File"},  // 3
    {"history_date", "Date"},  // 4
    {"title_id", "ID"},  // 5
    {"general_setting_show_tutorial", "Show the tutorial"},  // 6
    {"wizard_conflict_backup_warning", "Files that exist in both places are kept, and the older copy is renamed."},  // 7
    {"quick_mode_open_folder_btn", "Open folder"},  // 8
    {"history_last_week", "Last 7 days"},  // 9
    {"status_desc_ssl_verify_fail", "The server's security certificate could not be verified."},  // 10
    {"month_jan", "January"},  // 11
    {"share_enable_remove_msg", "Stop syncing this shared folder? Its files stay on the server."},  // 12
    {"wizard_summary_table_account", "Account:"},  // 13
    {"status_desc_pause", "Paused"},  // 14
    {"msi_filesinuse_dlg_closenone", "&Do not close the programs (a restart may be needed)"},  // 15
    {"desc_dwel_env_preparation_done", "Driftwell is ready."},  // 16
    {"msg_share_quotafull", "The quota of the shared folder is used up."},  // 17
    {"msg_download_aborted", "The download was stopped."},  // 18
    {"msi_welcome_dlg_subtitle", "Set up [ProductName] on this computer."},  // 19
    {"conn_mode_ez", "Through the relay service"},  // 20
    {"history_delete", "Deleted"},  // 21
    {"quick_mode_end_msg", "Driftwell is set up and has started syncing."},  // 22
    {"err_autoconn_sys", "Driftwell could not reach the relay service because of a system error. Try again later."},  // 23
    {"msg_ssl_error", "A secure connection to the server could not be established."},  // 24
    {"col_id", "ID"},  // 25
    {"advan_mode_set_share_folder_info", "Choose which shared folders on the server to sync with this computer."},  // 26
    {"session_selective_sync_btn", "Selective sync"},  // 27
    {"msi_progress_dlg_title", "{\\DwHeading}Installing [ProductName]"},  // 28
    {"more_tutorial", "More tips"},  // 29
    {"wizard_sync_folder_new_session", "Add a sync task"},  // 30
    {"main_queue_column_status", "Status"},  // 31
    {"resume_connection", "Resume"},  // 32
    {"msg_upgrading", "Driftwell is being updated. Please wait."},  // 33
    {"title_open_driftwell", "Open Driftwell"},  // 34
    {"friday", "Friday"},  // 35
    {"edit", "Edit"},  // 36
    {"connection_server", "Server:"},  // 37
    {"msi_button_yes", "&Yes"},  // 38
    {"msg_download_fail", "%1 could not be downloaded."},  // 39
    {"history_all_event", "All events"},  // 40
    {"msi_userexit_dlg_description1", "Your computer has not been changed."},  // 41
    {"title_pwd", "Password:"},  // 42
    {"manage_option_enable_icon_overlay", "Show sync status icons on files and folders"},  // 43
    {"msg_seldir_description", "Choose the folder to sync."},  // 44
    {"btn_no_need", "No, thanks"},  // 45
    {"selective_sync_remove_msg", "Files in folders you deselect are removed from this computer but stay on the server."},  // 46
    {"err_syncfolder_not_mounted", "The sync folder is on a volume that is not mounted. Connect the volume to continue syncing."},  // 47
    {"history_items", "%1 items"},  // 48
    {"msg_welcome", "Welcome to Driftwell!"},  // 49
    {"upgrade_failed", "The update failed. The previous version is still in use."},  // 50
    {"main_status_syncing", "Syncing..."},  // 51
    {"tray_updatedfile", "%1 was updated"},  // 52
    {"msi_error_dlg_title", "[ProductName] Setup"},  // 53
    {"desc_dwel_env_preparing", "Driftwell is initializing..."},  // 54
    {"msi_userexit_dlg_subtitle", "The wizard was stopped before it finished."},  // 55
    {"msi_maintenance_dlg_change_label", "&Change"},  // 56
    {"err_auth_short", "Authentication failed"},  // 57
    {"err_proto", "The server answered in a way Driftwell does not understand. Update the server and the client to the latest version."},  // 58
    {"first_page", "First page"},  // 59
    {"err_sync_direction_mismatch", "The sync direction of this folder differs from the one set on the server."},  // 60
    {"main_desc_processing_file", "Processing %1"},  // 61
    {"selective_sync_file_title", "Files"},  // 62
    {"history_type", "Type"},  // 63
    {"unlink_connection", "Unlink"},  // 64
    {"wizard_create_local_folder_failed", "The folder %1 could not be created."},  // 65
    {"wizard_setup_advan_mode_title", "Custom setup"},  // 66
    {"err_version_server", "The server runs an older version that Driftwell does not support. Update the server."},  // 67
    {"main_queue_preparing", "Preparing..."},  // 68
    {"sync_direction_mismatch", "The sync direction differs from the server's setting."},  // 69
    {"msi_button_back", "< &Back"},  // 70
    {"btn_resume", "Resume"},  // 71
    {"wizard_summary_title", "Summary"},  // 72
    {"err_ip_not_allowed", "The server does not accept connections from this IP address. Ask your administrator for access."},  // 73
    {"selective_sync_loading", "Loading..."},  // 74
    {"tray_syncing_file_cnt", "Syncing %1 files"},  // 75
    {"status_desc_diskfull", "The disk on the server is full."},  // 76
    {"main_queue_completed", "Completed"},  // 77
    {"tray_about", "About %1"},  // 78
    {"msg_localdiskfull", "The disk on this computer is full. Syncing is paused."},  // 79
    {"context_menu_filter_folder", "Stop syncing this folder"},  // 80
    {"title_value", "Value"},  // 81
    {"status_desc_localdisk_full", "The disk on this computer is full."},  // 82
    {"msi_button_no", "&No"},  // 83
    {"msg_unlinking", "Unlinking..."},  // 84
    {"err_network", "The network connection was lost. Driftwell will reconnect automatically."},  // 85
    {"msi_exit_dlg_description", "Click Finish to close the wizard."},  // 86
    {"tray_click_to_update", "A new version is ready. Click to install it."},  // 87
    {"wizard_readonly_backup_desc", "You only have read access to this folder. Files will be downloaded but never uploaded."},  // 88
    {"thursday", "Thursday"},  // 89
    {"use_relaylink", "Allow connections through the relay service"},  // 90
    {"main_status_connecting", "Connecting..."},  // 91
    {"wizard_share_nonexist_sync_folder_warning", "The shared folder no longer exists on the server."},  // 92
    {"btn_edit_connection", "Edit connection"},  // 93
    {"err_version_client", "This version of Driftwell is too old for the server. Install the latest version."},  // 94
    {"msi_ready_dlg_text", "Click Cancel to exit the wizard without installing."},  // 95
    {"version", "Version"},  // 96
    {"wizard_diskfull_sync_folder_warning", "There is not enough free space on this computer for this folder."},  // 97
    {"err_autoconn_ctrl", "The relay service could not find a route to your server. Check that the server is online."},  // 98
    {"err_share_not_mounted", "The shared folder on the server is not mounted. Mount it on the server and try again."},  // 99
    {"msg_folder_not_empty", "The folder is not empty. Its files will be merged with the files on the server."},  // 100
    {"err_pnx_share_link", "Sharing links are not available through the relay service."},  // 101
    {"status_desc_quotafull", "Your quota on the server is used up."},  // 102
    {"history_rename", "Renamed"},  // 103
    {"col_file_name", "File name"},  // 104
    {"black_list_btn", "Excluded folders..."},  // 105
    {"err_database", "The local sync database is damaged. Unlink the folder and link it again to rebuild it."},  // 106
    {"msi_readyrepair_dlg_description", "Click Repair to fix the installation of [ProductName]."},  // 107
    {"connection_enter_otp", "Verification code:"},  // 108
    {"manage_share_tab_name", "Shared folders"},  // 109
    {"title_ip", "Server:"},  // 110
    {"management_proxy_cancel_btn", "Cancel"},  // 111
    {"monday", "Monday"},  // 112
    {"desc_cannot_list_version", "The previous versions of this file cannot be listed."},  // 113
    {"wizard_user_disable_sync_folder_warning", "Syncing of this folder was turned off by your administrator."},  // 114
    {"msg_finish_way", "When syncing is finished:"},  // 115
    {"err_max_tries", "Driftwell gave up after %1 attempts. Check your network and try again."},  // 116
    {"tutorial_first_desc", "Put files into the Driftwell folder and they appear on your server and your other computers."},  // 117
    {"msi_button_repair", "&Repair"},  // 118
    {"msi_maintenance_dlg_remove_label", "Re&move"},  // 119
    {"notify_abnormal_short", "Connection unstable"},  // 120
    {"msi_ready_dlg_subtitle", "The wizard has everything it needs to begin the installation."},  // 121
    {"wizard_summary_desc", "Check your settings, then click Done to start syncing."},  // 122
    {"NSIS_NOT_ADMIN_CONFIRM", "You need administrator rights to install [ProductName]. Continue anyway?"},  // 123
    {"tray_management_page", "Settings"},  // 124
    {"btn_help", "Help"},  // 125
    {"sunday", "Sunday"},  // 126
    {"msg_finish", "Finished"},  // 127
    {"pause_connection", "Pause"},  // 128
    {"wizard_setup_repeat_warning", "The folder %1 is already synced by another task."},  // 129
    {"msi_maintenance_dlg_subtitle", "Choose what you want to do."},  // 130
    {"err_hb_change", "The server at this address has changed. Link the sync task again."},  // 131
    {"main_sync_task", "Sync tasks"},  // 132
    {"err_pnxdisable", "The relay service is turned off on the server. Connect directly or turn the service on."},  // 133
    {"desc_inactive", "Driftwell is not connected to a server."},  // 134
    {"title_conn_mode", "Connection type"},  // 135
    {"wizard_setup_advan_mode_desc", "Choose the folders on the server and on this computer yourself."},  // 136
    {"quick_mode_finish_page_more_detail", "To change what is synced, open the settings."},  // 137
    {"err_ssl_change", "The server's security certificate has changed. Confirm that you trust the new certificate."},  // 138
    {"err_disconn", "The connection to the server was closed."},  // 139
    {"history_action", "Action"},  // 140
    {"connection_unlinking", "Unlinking..."},  // 141
    {"month_mar", "March"},  // 142
    {"tooltip_folder_indexing", "Driftwell is indexing this folder."},  // 143
    {"advanced_settings", "Advanced settings"},  // 144
    {"status_desc_linking", "Connecting..."},  // 145
    {"manage_proxy_server_port", "Port:"},  // 146
    {"title_upgrade", "Update available"},  // 147
    {"black_list_desc", "Folders in this list are never synced."},  // 148
    {"btn_apply", "Apply"},  // 149
    {"backup_chooser_destination", "Back up to:"},  // 150
    {"wizard_setup_quick_mode_desc", "Sync your home folder on the server with a Driftwell folder on this computer."},  // 151
    {"wizard_system_err_sync_folder_warning", "The folder list could not be loaded because of a system error."},  // 152
    {"selective_sync_direction_title", "Sync direction"},  // 153
    {"msi_maintenance_welcome_dlg_subtitle", "Change, repair or remove [ProductName]."},  // 154
    {"wizard_set_sync_folder_desc", "Files in this folder are synced with the server."},  // 155
    {"msi_fatalerror_dlg_description1", "[ProductName] could not be installed. Your computer has not been changed."},  // 156
    {"file_max_size_label", "Maximum file size"},  // 157
    {"msi_filesinuse_dlg_description", "The following programs use files that [ProductName] Setup must update."},  // 158
    {"msi_maintenance_dlg_repair_tooltip", "Repair the installation"},  // 159
    {"msi_ready_dlg_title", "Ready to install [ProductName]"},  // 160
    {"setting_proxy_port", "Port:"},  // 161
    {"setting_filter_max_size", "Do not sync files larger than:"},  // 162
    {"setting_option_language_title", "Language:"},  // 163
    {"msi_maintenance_dlg_repair_label", "&Repair"},  // 164
    {"title_chart_local", "Space on this computer"},  // 165
    {"col_file_status", "Status"},  // 166
    {"col_file_size", "Size"},  // 167
    {"main_queue_progress", "Progress"},  // 168
    {"last_page", "Last page"},  // 169
    {"msg_linking", "Connecting..."},  // 170
    {"err_otp_enforced", "Your administrator requires two-step verification. Turn it on for your account first."},  // 171
    {"file_selective_sync", "Choose files to sync"},  // 172
    {"msi_maintenance_dlg_remove_tooltip", "Remove the program"},  // 173
    {"tray_current_syncing", "Now syncing: %1"},  // 174
    {"setting_proxy_password", "Password:"},  // 175
    {"manage_option_enable_startup", "Start Driftwell when I log in"},  // 176
    {"wizard_welcome_info", "Sign in to your server to get started."},  // 177
    {"share_enabled", "Enabled"},  // 178
    {"err_share_fail_enable", "The shared folder could not be turned on for syncing."},  // 179
    {"conn_mode_direct", "Direct connection"},  // 180
    {"title_ssl_enable", "Encrypted connection"},  // 181
    {"history_to", "To:"},  // 182
    {"status_desc_auth_short", "Authentication failed"},  // 183
    {"msg_info", "Information"},  // 184
    {"open_file", "Open"},  // 185
    {"month_sep", "September"},  // 186
    {"msi_maintenance_dlg_change_text_disabled", "[ProductName] has no features that can be changed."},  // 187
    {"next_x_pages", "Next %1 pages"},  // 188
    {"wizard_setup_mode_page_desc", "Quick setup uses the recommended settings. Custom setup lets you choose each one."},  // 189
    {"session_resume_btn", "Resume"},  // 190
    {"manage_share_title", "Shared folders"},  // 191
    {"conflict_policy_desc", "When a file was changed on both sides:"},  // 192
    {"error_zero_version", "This file has no earlier versions."},  // 193
    {"month_apr", "April"},  // 194
    {"msi_button_retry", "&Retry"},  // 195
    {"btn_select", "Select..."},  // 196
    {"tutorial_second_desc", "A green check mark means a file is up to date."},  // 197
    {"btn_manage", "Manage"},  // 198
    {"backup_chooser_choose_source", "Choose the folders to back up"},  // 199
    {"manage_option_language", "Language:"},  // 200
    {"file_black_list_label", "Excluded files:"},  // 201
    {"connection_unlink_confirm", "Unlinking stops syncing with this server. Your files stay on this computer. Continue?"},  // 202
    {"open_contain_folder", "Show in Finder"},  // 203
    {"msi_fatalerror_dlg_subtitle", "An error stopped the [ProductName] Setup Wizard."},  // 204
    {"wizard_ssl_verify_fail_sync_folder_warning", "The server's security certificate could not be verified."},  // 205
    {"manage_proxy_title", "Proxy"},  // 206
    {"btn_ok", "OK"},  // 207
    {"tutorial_second_title", "Sync status at a glance"},  // 208
    {"msi_maintenance_dlg_remove_text", "Removes [ProductName] from this computer. Your synced files stay where they are."},  // 209
    {"wizard_invalid_sync_folder_warning", "This folder cannot be used for syncing. Choose another one."},  // 210
    {"selective_sync_folder_title", "Folders"},  // 211
    {"notify_new_share", "%1 shared the folder \"%2\" with you."},  // 212
    {"msg_disabled", "Disabled"},  // 213
    {"wizard_setup_repeat_warning2", "Choose a folder that no other sync task uses."},  // 214
    {"msi_readyremove_dlg_text", "Your synced files and folders are not deleted."},  // 215
    {"update_pkg_for_selective_sync", "Update Driftwell to use selective sync."},  // 216
    {"setting_option_language_default", "System default"},  // 217
    {"manage_option_enable_ssl", "Use an encrypted connection (HTTPS)"},  // 218
    {"btn_start_now", "Start now"},  // 219
    {"advan_setup_wizard", "Custom setup"},  // 220
    {"manage_share_change_folder", "Change folder..."},  // 221
    {"wizard_setsyncfolder_title", "Choose folders"},  // 222
    {"setting_filter_zero_desc", "0 means no limit."},  // 223
    {"status_desc_errversion_client", "This version of Driftwell is too old for the server. Install the latest version."},  // 224
    {"msi_button_print", "&Print"},  // 225
    {"history_keyword", "Keyword"},  // 226
    {"one_way_sync_download", "Download only"},  // 227
    {"open_sync_status", "Show sync status"},  // 228
    {"btn_advanced", "Advanced"},  // 229
    {"setting_filter_ignore_local_delete", "Keep files on the server when I delete them on this computer"},  // 230
    {"treedialog_server_desc", "Choose a folder on the server."},  // 231
    {"wizard_summary_table_local_title", "On this computer"},  // 232
    {"setting_tab_connection", "Connection"},  // 233
    {"setting_option_start_upon_login", "Start Driftwell when I log in"},  // 234
    {"history_search", "Search"},  // 235
    {"msg_download_done", "%1 has been downloaded."},  // 236
    {"setting_proxy_ip", "Server:"},  // 237
    {"msi_readyrepair_dlg_text", "Click Back to review your choice, or Cancel to exit the wizard."},  // 238
    {"month_nov", "November"},  // 239
    {"wizard_welcome_help", "Need help setting up? Open the online guide."},  // 240
    {"msi_filesinuse_dlg_text", "Close these programs and click Retry, or click Ignore to continue anyway."},  // 241
    {"manage_proxy_chk_sys_proxy", "Use the system proxy settings"},  // 242
    {"msi_filesinuse_dlg_title", "Files in use"},  // 243
    {"msi_eula_dlg_reject", "I &do not accept the terms of the license agreement"},  // 244
    {"err_ssl_verify_fail", "The server's security certificate could not be verified."},  // 245
    {"msg_catchevent", "Driftwell noticed changes in your folders and is syncing them."},  // 246
    {"backup_chooser_no_folder_selected", "No folder selected."},  // 247
    {"wizard_new_sync_folder_desc", "Choose another pair of folders to keep in sync."},  // 248
    {"title_ip_detail", "Enter the server's host name, IP address or relay ID."},  // 249
    {"msi_welcome_dlg_title", "{\\DwTitleLarge}Welcome to the [ProductName] Setup Wizard"},  // 250
    {"msi_maintenance_dlg_description", "Select the operation you want to perform on [ProductName]."},  // 251
    {"msg_test_username_fail", "The user name is not valid on this server."},  // 252
    {"err_autoconn_invalidid", "The relay ID is not valid. Check the ID and try again."},  // 253
    {"err_common", "Something went wrong. Try again later."},  // 254
    {"tutorial_first_title", "Your Driftwell folder"},  // 255
    {"context_menu_sendto_prefix", "Send to %1"},  // 256
    {"msi_eula_dlg_description", "To install [ProductName], you must accept the terms of this agreement."},  // 257
    {"msg_confirm_unlink", "Do you really want to unlink this computer from the server?"},  // 258
    {"tutorial_third_title", "Work from the menu bar"},  // 259
    {"tutorial_third_desc_2", "From there you can pause syncing or open your settings."},  // 260
    {"err_relaylink_file_sharing", "Files cannot be shared through a relay connection."},  // 261
    {"msg_network_drive_watch", "Changes on network drives may be detected with a delay."},  // 262
    {"btn_pause", "Pause"},  // 263
    {"main_desc_processing_count", "%1 of %2 files processed"},  // 264
    {"msg_seldir", "Select a folder"},  // 265
    {"btn_wizard_readonly_no", "Choose another folder"},  // 266
    {"conn_mode_reading", "Detecting the connection type..."},  // 267
    {"backup_chooser_desc", "The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup."},  // 268
    {"hb_overview", "Server overview"},  // 269
    {"setting_proxy_err_ipport_empty", "Enter the address and the port of the proxy server."},  // 270
    {"btn_ssl_continue", "Continue"},  // 271
    {"manage_share_local_syncfolder", "Local folder"},  // 272
    {"label_locked_file", "This file is locked by another program."},  // 273
    {"msi_maintenance_dlg_title", "{\\DwHeading}Change, repair or remove installation"},  // 274
    {"title_standby", "Standing by"},  // 275
    {"manage_proxy_chk_no_proxy", "No proxy"},  // 276
    {"tray_resume", "Resume"},  // 277
    {"tray_relink", "Reconnect"},  // 278
    {"loading", "Loading..."},  // 279
    {"msi_maintenance_welcome_dlg_title", "{\\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard"},  // 280
    {"msi_cancel_dlg_text", "Do you really want to cancel the installation of [ProductName]?"},  // 281
    {"err_link_same_hb", "This computer is already linked to this server."},  // 282
    {"context_menu_share_link", "Copy a sharing link"},  // 283
    {"msg_about", "%1\\nVersion:\\t%2"},  // 284
    {"yes", "Yes"},  // 285
    {"err_auth", "The user name or password is incorrect. Enter them again."},  // 286
    {"msg_shareitem_delete", "Remove this shared folder from the list?"},  // 287
    {"wizard_welcome_footer_info", "Your files stay on your own server."},  // 288
    {"err_shareitem_delete", "The shared folder could not be removed from the list."},  // 289
    {"msg_sub_slogan", "Private, fast and always up to date"},  // 290
    {"tray_help", "Help"},  // 291
    {"status_desc_syncing", "Syncing..."},  // 292
    {"context_menu_filter_folders", "Stop syncing these folders"},  // 293
    {"recently_changed_title", "Recently changed"},  // 294
    {"tray_unstable", "Connection unstable"},  // 295
    {"notify_abnormal", "The connection to the server is unstable. Driftwell keeps trying to reconnect."},  // 296
    {"msi_welcome_dlg_description", "The Setup Wizard will install [ProductName] on your computer.\\nClick Next to continue or Cancel to exit the Setup Wizard."},  // 297
    {"manage_option_title", "Options"},  // 298
    {"msi_eula_dlg_subtitle", "Read the following license agreement carefully."},  // 299
    {"session_pause_btn", "Pause"},  // 300
    {"title_chart_tray", "Sync activity"},  // 301
    {"selective_sync", "Selective sync"},  // 302
    {"context_menu_version_browse", "Browse previous versions"},  // 303
    {"title_bubble_sharing", "%1 shared a folder with you"},  // 304
    {"main_settings", "Settings"},  // 305
    {"time_day_ago", "%1 days ago"},  // 306
    {"language_default", "System default"},  // 307
    {"err_otp_invalid", "The verification code is incorrect or has expired."},  // 308
    {"manage_proxy_label_username", "User name:"},  // 309
    {"err_share_nonexist_short", "Shared folder not found"},  // 310
    {"history_customize", "Custom range"},  // 311
    {"msg_folder_readonly", "This folder is read-only. Changes on this computer are not uploaded."},  // 312
    {"title_usr", "User name:"},  // 313
    {"history_reset", "Reset"},  // 314
    {"err_inval", "Invalid parameter."},  // 315
    {"month_jun", "June"},  // 316
    {"err_invalid", "Invalid parameter."},  // 317
    {"main_desc_last_upload", "Last upload: %1"},  // 318
    {"finish", "Finish"},  // 319
    {"tray_status_paused", "Paused"},  // 320
    {"wizard_connection_setting_desc", "You can change the connection settings later."},  // 321
    {"file_ext_label", "File extension"},  // 322
    {"wizard_welcome_title", "Welcome to Driftwell"},  // 323
    {"month_feb", "February"},  // 324
    {"history_file", "File"},  // 325
    {"manage_option_merge_mode", "Merge files when linking a folder"},  // 326
    {"err_backup_fail", "The backup could not be completed. Check the destination folder and try again."},  // 327
    {"history_from", "From:"},  // 328
    {"main_queue_waiting", "Waiting"},  // 329
    {"network_management_page_btn", "Network settings"},  // 330
    {"setting_filter_table_desc", "Files with these extensions are not synced."},  // 331
    {"wizard_connection_desc", "Enter the address of your server and your account details."},  // 332
    {"wizard_conflict_sync_folder_warning", "This folder overlaps with a folder that is already synced."},  // 333
    {"msi_cancel_dlg_title", "Cancel installation"},  // 334
    {"err_share_perm_short", "Permission denied"},  // 335
    {"err_version_short", "Version not supported"},  // 336
    {"wizard_quotafull_sync_folder_warning", "There is not enough quota left on the server for this folder."},  // 337
    {"btn_next", "Next"},  // 338
    {"saturday", "Saturday"},  // 339
    {"col_computer_name", "Computer name"},  // 340
    {"setting_proxy_err_invalid_port", "The port must be a number from 1 to 65535."},  // 341
    {"progress_preparing", "Preparing..."},  // 342
    {"setting_filter_table_editor_tooltip", "Double-click to edit the extension"},  // 343
    {"msi_fatalerror_dlg_title", "{\\DwTitleLarge}The installation of [ProductName] failed"},  // 344
    {"msi_readyrepair_dlg_subtitle", "The wizard is ready to repair [ProductName]."},  // 345
    {"title_name", "Name"},  // 346
    {"history_download", "Downloaded"},  // 347
    {"month_jul", "July"},  // 348
    {"conflict_policy_overwrite_client", "Always use the file from the server"},  // 349
    {"msg_checkpass", "Checking your password..."},  // 350
    {"msi_maintenance_dlg_change_text", "Lets you change which features of [ProductName] are installed."},  // 351
    {"msg_test_connect", "Test connection"},  // 352
    {"msi_progress_dlg_status_label", "Status:"},  // 353
    {"wizard_network_err_sync_folder_warning", "The folder list could not be loaded because of a network error."},  // 354
    {"title_inactive", "Not connected"},  // 355
    {"main_status_uptodate", "Up to date"},  // 356
    {"btn_unlink", "Unlink"},  // 357
    {"btn_done", "Done"},  // 358
    {"context_menu_resume_folders", "Sync these folders again"},  // 359
    {"msi_button_ignore", "&Ignore"},  // 360
    {"title_icon_double_clicked", "Double-click the icon to open Driftwell."},  // 361
    {"wizard_create_driftwell_folder", "Create a Driftwell folder in my home folder"},  // 362
    {"tray_opendir", "Open the Driftwell folder"},  // 363
    {"tuesday", "Tuesday"},  // 364
    {"msi_exit_dlg_launch", "&Start [ProductName] now"},  // 365
    {"main_queue_column_progress", "Progress"},  // 366
    {"title_ssl_warning", "Security warning"},  // 367
    {"try_syncing", "Try to sync again"},  // 368
    {"NSIS_DRIFTWELL_INSTALLED_CURRENT", "This version of [ProductName] is already installed."},  // 369
    {"month_aug", "August"},  // 370
    {"open_main_app", "Open Driftwell"},  // 371
    {"del", "Remove"},  // 372
    {"msg_connectsucc", "Connected successfully."},  // 373
    {"manage_proxy_chk_account", "The proxy server requires a password"},  // 374
    {"msi_maintenance_dlg_change_tooltip", "Change the installed features"},  // 375
    {"msi_filesinuse_dlg_text2", "If you continue, you may have to restart your computer afterwards."},  // 376
    {"folder_selective_sync", "Choose folders to sync"},  // 377
    {"wizard_find_local_hb_tooltip", "Search for servers on this network"},  // 378
    {"info_mergefolder", "Files in this folder will be merged with the files on the server. Nothing is deleted."},  // 379
    {"connection_password", "Password:"},  // 380
    {"status_desc_uptodate", "Up to date"},  // 381
    {"tray_uptodate", "Up to date"},  // 382
    {"tutorial_fourth_desc", "Changed a file by mistake? Restore an earlier version from the server."},  // 383
    {"label_downloading", "Downloading..."},  // 384
    {"msg_startup", "Driftwell is starting..."},  // 385
    {"month_dec", "December"},  // 386
    {"title_changefolder", "Change sync folder"},  // 387
    {"col_file_destination", "Destination"},  // 388
    {"err_invalid_port_number", "The port number must be between 1 and 65535."},  // 389
    {"setting_proxy_sys_proxy", "Use the system proxy settings"},  // 390
    {"btn_back", "Back"},  // 391
    {"main_status_error", "Error"},  // 392
    {"setting_tab_option", "Options"},  // 393
    {"err_share_mountpt_short", "Mount point not available"},  // 394
    {"read_only", "Read-only"},  // 395
    {"quick_mode_finish_page_title", "You are all set"},  // 396
    {"msi_button_ok", "OK"},  // 397
    {"manage_share_status", "Status"},  // 398
    {"status_desc_errversion_server", "The server runs an older version that Driftwell does not support. Update the server."},  // 399
    {"manage_setting_not_save", "Your changes have not been saved. Save them now?"},  // 400
    {"setting_proxy_no_proxy", "No proxy"},  // 401
    {"tray_main_app", "Open Driftwell"},  // 402
    {"manage_share_enable", "Sync"},  // 403
    {"wizard_welcome_desc", "Driftwell keeps the files on this computer and on your server in sync."},  // 404
    {"msg_mergefolder", "Merge the files in this folder with those on the server?"},  // 405
    {"session_unlink_confirm_msg", "Do you really want to remove this sync task? Files already synced stay on this computer."},  // 406
    {"msi_button_finish", "&Finish"},  // 407
    {"conn_mode_wan", "Internet"},  // 408
    {"setting_filter_table_title", "File types not to sync"},  // 409
    {"status_desc_perm_short", "Permission denied"},  // 410
    {"history_time", "Time"},  // 411
    {"history_upload", "Uploaded"},  // 412
    {"conn_mode_lan", "Local network"},  // 413
    {"wizard_set_sync_folder_title", "Sync folder on this computer"},  // 414
    {"setting_filter_point_prefix", "Extensions start with a dot, for example .tmp"},  // 415
    {"status_desc_abnormal_short", "Connection unstable"},  // 416
    {"msi_readyremove_dlg_subtitle", "The wizard is ready to remove [ProductName]."},  // 417
    {"msg_info_description", "Your changes were saved."},  // 418
    {"tutorial_third_desc", "Click the Driftwell icon in the menu bar to see what is being synced."},  // 419
    {"block_file_name_label", "File names not to sync:"},  // 420
    {"wizard_summary_table_path", "Folder:"},  // 421
    {"history_file_type", "File type"},  // 422
    {"manage_proxy_chk_manual", "Set up the proxy manually"},  // 423
    {"err_pnxdisable_short", "Relay service disabled"},  // 424
    {"err_abnormal", "The connection is unstable. Driftwell keeps trying."},  // 425
    {"msi_readyremove_dlg_description", "Click Remove to remove [ProductName] from this computer."},  // 426
    {"setting_tab_proxy", "Proxy"},  // 427
    {"context_menu_resume_folder", "Sync this folder again"},  // 428
    {"msi_exit_dlg_title", "{\\DwTitleLarge}[ProductName] has been installed"},  // 429
    {"msi_button_remove", "Re&move"},  // 430
    {"wizard_summary_table_server", "Server:"},  // 431
    {"got_it", "Got it"},  // 432
    {"time_just_now", "Just now"},  // 433
    {"main_queue_locking", "Locked by another program"},  // 434
    {"wizard_setsyncfolder_desc", "Choose a folder on the server and a folder on this computer to keep in sync."},  // 435
    {"msg_download_downloading", "Downloading..."},  // 436
    {"btn_choseother", "Choose another folder"},  // 437
    {"msi_fatalerror_dlg_description2", "To try again, run the installer later. Click Finish to close the wizard."},  // 438
    {"wizard_connection_title", "Connect to your server"},  // 439
    {"err_share_limit", "You can sync at most %1 shared folders."},  // 440
    {"main_queue_uploading", "Uploading..."},  // 441
    {"session_add_btn", "Add"},  // 442
    {"msi_button_next", "&Next >"},  // 443
    {"manage_option_show_filtered_icons", "Show an icon on files that are not synced"},  // 444
    {"manage_proxy_tab_name", "Proxy"},  // 445
    {"prev_x_pages", "Previous %1 pages"},  // 446
    {"msi_progress_dlg_subtitle", "Please wait while the wizard installs [ProductName]."},  // 447
    {"history_file_name", "File name"},  // 448
    {"tray_exit", "Quit Driftwell"},  // 449
    {"session_unlink_btn", "Unlink"},  // 450
    {"no_need", "No, thanks"},  // 451
    {"msg_enabled", "Enabled"},  // 452
    {"app_name", "Driftwell Backup"},  // 453
    {"msg_diskfull", "There is not enough free space on this computer."},  // 454
    {"add", "Add"},  // 455
    {"manage_setting_no_change", "Nothing was changed."},  // 456
    {"label_preparing", "Preparing..."},  // 457
    {"two_way_sync", "Two-way sync"},  // 458
    {"wednesday", "Wednesday"},  // 459
    {"col_create_time", "Created"},  // 460
    {"desc_cannot_share_link", "A sharing link cannot be created for this item."},  // 461
    {"setting_proxy_err_empty_username", "Enter the user name for the proxy server."},  // 462
    {"connection_use_relaylink", "Allow connections through the relay service"},  // 463
    {"history_last_month", "Last 30 days"},  // 464
    {"manage_share_loading", "Loading..."},  // 465
    {"err_short", "Error"},  // 466
    {"notify_new_share_short", "New shared folder"},  // 467
    {"wizard_set_sync_folder", "Change..."},  // 468
    {"msi_maintenance_welcome_dlg_description", "The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\\nClick Next to continue or Cancel to exit."},  // 469
    {"conflict_policy_rename_conflict", "Keep both files and rename the older one"},  // 470
    {"main_status_pause", "Paused"},  // 471
    {"msi_eula_dlg_accept", "I &accept the terms of the license agreement"},  // 472
    {"month_oct", "October"},  // 473
    {"month_may", "May"},  // 474
    {"tutorial_fourth_title", "Previous versions"},  // 475
    {"msg_running", "%1 is already running."},  // 476
    {"msi_ready_dlg_description", "Click Install to begin. To review or change any of your settings, click Back."},  // 477
    {"file_max_size_limit", "Files larger than %1 MB are not synced."},  // 478
    {"msi_userexit_dlg_title", "{\\DwTitleLarge}The installation of [ProductName] was interrupted"},  // 479
    {"tray_setinfo", "Connection details"},  // 480
    {"manage_proxy_server_ip", "Server:"},  // 481
    {"tutorial_second_desc_2", "Blue arrows mean a file is being synced."},  // 482
    {"wizard_sync_folder_new_nas", "Link another server"},  // 483
    {"manage_setting_applying", "Applying the settings..."},  // 484
    {"err_user_name_empty", "Enter a user name."},  // 485
    {"quick_mode_finish_page_desc", "Your Driftwell folder is now in sync with the server."},  // 486
    {"manage_share_name", "Folder name"},  // 487
    {"manage_option_enable_desktop_notify", "Show desktop notifications"},  // 488
    {"wizard_welcome_mask_desc", "Connecting..."},  // 489
    {"setting_tab_filter", "Filters"},  // 490
    {"tray_hb_change", "The server at this address has changed. Link the sync task again."},  // 491
    {"action_unlink", "Unlink"},  // 492
    {"setting_tab_folder", "Folders"},  // 493
    {"main_queue_title", "Transfer queue"},  // 494
    {"folder_name", "Folder name"},  // 495
    {"wizard_setup_mode_page_title", "Choose a setup type"},  // 496
    {"connection_username", "User name:"},  // 497
    {"err_init_failed", "Driftwell could not start. Restart your computer and try again."},  // 498
    {"msi_maintenance_dlg_repair_text", "Fixes missing or damaged files, shortcuts and registry entries of [ProductName]."},  // 499
    {"history_date_range", "%1 to %2"},  // 500
    {"tray_pause", "Pause"},  // 501
    {"tray_upgrade", "Install update"},  // 502
    {"msg_summary", "Summary"},  // 503
    {"link_new_nas", "Link another server"},  // 504
    {"label_uploading", "Uploading..."},  // 505
    {"btn_cancel", "Cancel"},  // 506
    {"msi_exit_dlg_text", "[ProductName] will keep the folders you choose in sync with your server."},  // 507
    {"btn_merge", "Merge"},  // 508
    {"manage_sync_tab_name", "Sync tasks"},  // 509
    {"msi_exit_dlg_subtitle", "[ProductName] was installed successfully."},  // 510
    {"err_share_perm", "You do not have permission to access this shared folder."},  // 511
    {"msi_button_exit", "E&xit"},  // 512
    {"msg_share_bubble_suffix", "and %1 more"},  // 513
    {"title_status_info", "Status information"},  // 514
    {"setting_proxy_username", "User name:"},  // 515
    {"manage_proxy_label_password", "Password:"},  // 516
    {"col_time", "Time"},  // 517
    {"manage_option_synchronization_mode", "Sync mode:"},  // 518
    {"title_folder_readonly", "Read-only folder"},  // 519
    {"err_hb_not_match", "This folder belongs to a different server."},  // 520
    {"btn_proxy", "Proxy"},  // 521
    {"open_folder", "Open folder"},  // 522
    {"msg_error", "Error"},  // 523
    {"desc_cannot_download", "This file cannot be downloaded right now."},  // 524
    {"block_point_prefix", "Patterns without a wildcard must match the whole file name."},  // 525
    {"block_file_table_title", "Excluded file names"},  // 526
    {"title_welcome", "Welcome"},  // 527
    {"err_proxy_ipport_empty", "Enter the address and the port of the proxy server."},  // 528
    {"NSIS_DRIFTWELL_INSTALLED_NEWER", "A newer version of [ProductName] is already installed."},  // 529
    {"treedialog_pc_title", "This computer"},  // 530
    {"msg_progress", "Progress"},  // 531
    {"err_quotafull", "Your storage quota on the server is used up. Free up space or ask for a larger quota."},  // 532
    {"col_file_action", "Action"},  // 533
    {"msi_filesinuse_dlg_closeall", "&Close the programs automatically and restart them afterwards"},  // 534
    {"history_folder", "Folder"},  // 535
    {"err_local_sync_folder_miss", "The local sync folder cannot be found. It may have been moved or deleted."},  // 536
    {"status_desc_version_short", "Version not supported"},  // 537
    {"msi_progress_dlg_text", "The wizard is copying files and updating your system."},  // 538
    {"dont_show_msg", "Do not show this message again"},  // 539
    {"status_desc_hb_changed", "The server at this address has changed. Link the sync task again."},  // 540
    {"download_only", "Download only"},  // 541
    {"conflict_dropbox", "Keep both files and add the computer name to the copy from this computer"},  // 542
    {"connection_ssl", "Use an encrypted connection (HTTPS)"},  // 543
    {"manage_option_tab_name", "Options"},  // 544
    {"setting_proxy_manual", "Set up the proxy manually"},  // 545
    {"btn_shareitem_delete", "Remove"},  // 546
    {"err_diskfull", "There is not enough free space on this computer. Free up space to continue syncing."},  // 547
    {"today", "Today"},  // 548
    {"management_proxy_apply_btn", "Apply"},  // 549
    {"files_update", "Files updated"},  // 550
    {"main_download_history", "Download history"},  // 551
    {"msg_quotafull", "Your storage quota on the server is used up."},  // 552
    {"time_hour_ago", "%1 hours ago"},  // 553
    {"no_valid_folder", "No folder can be synced."},  // 554
    {"err_conflict", "A conflict was found. Both versions were kept."},  // 555
    {"history_yesterday", "Yesterday"},  // 556
    {"msi_readyremove_dlg_title", "Ready to remove [ProductName]"},  // 557
    {"msg_language_restart", "The new language is used after Driftwell restarts."},  // 558
    {"wizard_setup_repeat_warning_title", "Folder already in use"},  // 559
    {"tray_updating", "Updating Driftwell..."},  // 560
    {"msi_eula_dlg_title", "License agreement"},  // 561
    {"wizard_summary_table_remote_title", "On the server"},  // 562
    {"msg_folder_mount_point", "%1 is a mount point and cannot be used as a sync folder."},  // 563
    {"title_folderpath", "Folder path"},  // 564
    {"msi_filesinuse_dlg_subtitle", "Some files that need to be updated are in use."},  // 565
    {"history_no_data", "No events to show."},  // 566
    {"read_only_tooltip", "Changes to this folder on this computer are not uploaded."},  // 567
    {"history_page_title", "Sync history"},  // 568
    {"wizard_readonly_sync_folder_warning", "You only have read access to this shared folder."},  // 569
    {"manage_option_sync_mode", "Sync mode:"},  // 570
    {"manage_option_use_black_white_icon", "Use a monochrome menu bar icon"},  // 571
    {"wizard_setup_quick_mode_title", "Quick setup"},  // 572
    {"title_folder_nonempty", "Folder is not empty"},  // 573
    {"msg_ssl_change", "The server's certificate has changed. Trust the new certificate?"},  // 574
    {"setting_option_language_restart", "The new language is used after Driftwell restarts."},  // 575
    {"err_full_short", "Disk full"},  // 576
    {"time_minute_ago", "%1 minutes ago"},  // 577
    {"err_otp_required", "Enter the verification code from your authenticator app."},  // 578
    {"wizard_access_deny_sync_folder_warning", "You do not have access to this folder."},  // 579
    {"wizard_new_sync_folder_title", "New sync task"},  // 580
    {"btn_continue", "Continue"},  // 581
    {"block_file_name_tool_tip", "Use * to match any characters, for example ~*.tmp"},  // 582
    {"tray_data_checking", "Checking files..."},  // 583
    {"msi_progress_dlg_description", "This may take a few minutes."},  // 584
    {"conflict_policy_compare_mtime", "Keep the file that was changed last"},  // 585
    {"msi_button_install", "&Install"},  // 586
    {"err_share_folder_conflict", "This folder is already synced with another shared folder."},  // 587
    {"msg_slogan", "Sync with your own server"},  // 588
    {"local_hb_search", "Search this network"},  // 589
    {"setting_proxy_auth", "The proxy server requires a password"},  // 590
    {"btn_wizard_readonly_yes", "Download only"},  // 591
    {"wizard_welcome_slogan", "Your files, on every computer you use."},  // 592
    {"err_remote_not_mounted", "The folder on the server is not available."},  // 593
    {"wizard_finish_pairing_desc", "Setup is complete. Driftwell is now syncing your files."},  // 594
    {"msi_readyrepair_dlg_title", "Ready to repair [ProductName]"},  // 595
    {"msi_userexit_dlg_description2", "To install [ProductName] later, run the installer again."},  // 596
    {"err_no_valid_folder", "No folder can be synced."},  // 597
    {"wizard_setup_repeat_warning_desc", "One folder can belong to only one sync task."},  // 598
    {"btn_settings", "Settings"},  // 599
};
// clang-format on

constexpr char foldAscii(char c)
{
    return (c >= 'A' && c <= 'Z') ? char(c - 'A' + 'a') : c;
}

constexpr bool sameKey(const char* a, const char* b)
{
    while (*a && foldAscii(*a) == foldAscii(*b)) {
        ++a;
        ++b;
    }
    return foldAscii(*a) == foldAscii(*b);
}

// A missing row would be zero-filled; a key that repeats (in any case) would
// make LookupStrID miss the later row.
constexpr bool rowsCompleteAndKeysUnique()
{
    for (int id = 0; id < kRowCount; ++id) {
        if (!kRows[id].key || !*kRows[id].key || !kRows[id].text || !*kRows[id].text)
            return false;
        for (int earlier = 0; earlier < id; ++earlier) {
            if (sameKey(kRows[id].key, kRows[earlier].key))
                return false;
        }
    }
    return true;
}
static_assert(rowsCompleteAndKeysUnique(), "every row needs a key and a text; keys are unique ignoring case");
static_assert(sameKey(kRows[16].key, "desc_dwel_env_preparation_done") &&
                  sameKey(kRows[54].key, "desc_dwel_env_preparing") && sameKey(kRows[453].key, "app_name"),
              "rows shown by the launcher moved");

// Null until InitStrTable; read-only afterwards, so readers need no lock.
const char* stab[kRowCount];
const char* ktab[kRowCount];

}  // namespace

void InitStrTable()
{
    for (int id = 0; id < kRowCount; ++id) {
        stab[id] = kRows[id].text;
        ktab[id] = kRows[id].key;
    }
}

QString LoadStr(int id)
{
    if (id < 0 || id >= kRowCount || !stab[id])
        return QString();
    // The catalogue is keyed by the English text, so rows sharing a text
    // always share its translation.
    QString text = QCoreApplication::translate("global", stab[id], nullptr, -1);
    text.replace(QLatin1String("\\n"), QLatin1String("\n"));
    text.replace(QLatin1String("\\t"), QLatin1String("\t"));
    return text;
}

int LookupStrID(QString key)
{
    const QByteArray local = key.toLocal8Bit();
    for (int id = 0; id < kRowCount; ++id) {
        if (ktab[id] && qstricmp(local.constData(), ktab[id]) == 0)
            return id;
    }
    return -1;
}

}  // namespace StrTable
