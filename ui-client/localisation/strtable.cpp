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

// Rows in id order. Only 16, 54 and 453 carry their English text yet; every
// other row holds its key as a stand-in text until the product's English
// texts are filled in (a stand-in is never empty, and no catalogue has it).
constexpr Row kRows[kRowCount] = {
    {"wizard_ssl_change_sync_folder_warning", "wizard_ssl_change_sync_folder_warning"},  // 0
    {"msi_button_cancel", "msi_button_cancel"},  // 1
    {"err_create_session_fail", "err_create_session_fail"},  // 2
    {"main_queue_column_file", "main_queue_column_file"},  // 3
    {"history_date", "history_date"},  // 4
    {"title_id", "title_id"},  // 5
    {"general_setting_show_tutorial", "general_setting_show_tutorial"},  // 6
    {"wizard_conflict_backup_warning", "wizard_conflict_backup_warning"},  // 7
    {"quick_mode_open_folder_btn", "quick_mode_open_folder_btn"},  // 8
    {"history_last_week", "history_last_week"},  // 9
    {"status_desc_ssl_verify_fail", "status_desc_ssl_verify_fail"},  // 10
    {"month_jan", "month_jan"},  // 11
    {"share_enable_remove_msg", "share_enable_remove_msg"},  // 12
    {"wizard_summary_table_account", "wizard_summary_table_account"},  // 13
    {"status_desc_pause", "status_desc_pause"},  // 14
    {"msi_filesinuse_dlg_closenone", "msi_filesinuse_dlg_closenone"},  // 15
    {"desc_dwel_env_preparation_done", "Driftwell is ready."},  // 16
    {"msg_share_quotafull", "msg_share_quotafull"},  // 17
    {"msg_download_aborted", "msg_download_aborted"},  // 18
    {"msi_welcome_dlg_subtitle", "msi_welcome_dlg_subtitle"},  // 19
    {"conn_mode_ez", "conn_mode_ez"},  // 20
    {"history_delete", "history_delete"},  // 21
    {"quick_mode_end_msg", "quick_mode_end_msg"},  // 22
    {"err_autoconn_sys", "err_autoconn_sys"},  // 23
    {"msg_ssl_error", "msg_ssl_error"},  // 24
    {"col_id", "col_id"},  // 25
    {"advan_mode_set_share_folder_info", "advan_mode_set_share_folder_info"},  // 26
    {"session_selective_sync_btn", "session_selective_sync_btn"},  // 27
    {"msi_progress_dlg_title", "msi_progress_dlg_title"},  // 28
    {"more_tutorial", "more_tutorial"},  // 29
    {"wizard_sync_folder_new_session", "wizard_sync_folder_new_session"},  // 30
    {"main_queue_column_status", "main_queue_column_status"},  // 31
    {"resume_connection", "resume_connection"},  // 32
    {"msg_upgrading", "msg_upgrading"},  // 33
    {"title_open_driftwell", "title_open_driftwell"},  // 34
    {"friday", "friday"},  // 35
    {"edit", "edit"},  // 36
    {"connection_server", "connection_server"},  // 37
    {"msi_button_yes", "msi_button_yes"},  // 38
    {"msg_download_fail", "msg_download_fail"},  // 39
    {"history_all_event", "history_all_event"},  // 40
    {"msi_userexit_dlg_description1", "msi_userexit_dlg_description1"},  // 41
    {"title_pwd", "title_pwd"},  // 42
    {"manage_option_enable_icon_overlay", "manage_option_enable_icon_overlay"},  // 43
    {"msg_seldir_description", "msg_seldir_description"},  // 44
    {"btn_no_need", "btn_no_need"},  // 45
    {"selective_sync_remove_msg", "selective_sync_remove_msg"},  // 46
    {"err_syncfolder_not_mounted", "err_syncfolder_not_mounted"},  // 47
    {"history_items", "history_items"},  // 48
    {"msg_welcome", "msg_welcome"},  // 49
    {"upgrade_failed", "upgrade_failed"},  // 50
    {"main_status_syncing", "main_status_syncing"},  // 51
    {"tray_updatedfile", "tray_updatedfile"},  // 52
    {"msi_error_dlg_title", "msi_error_dlg_title"},  // 53
    {"desc_dwel_env_preparing", "Driftwell is initializing..."},  // 54
    {"msi_userexit_dlg_subtitle", "msi_userexit_dlg_subtitle"},  // 55
    {"msi_maintenance_dlg_change_label", "msi_maintenance_dlg_change_label"},  // 56
    {"err_auth_short", "err_auth_short"},  // 57
    {"err_proto", "err_proto"},  // 58
    {"first_page", "first_page"},  // 59
    {"err_sync_direction_mismatch", "err_sync_direction_mismatch"},  // 60
    {"main_desc_processing_file", "main_desc_processing_file"},  // 61
    {"selective_sync_file_title", "selective_sync_file_title"},  // 62
    {"history_type", "history_type"},  // 63
    {"unlink_connection", "unlink_connection"},  // 64
    {"wizard_create_local_folder_failed", "wizard_create_local_folder_failed"},  // 65
    {"wizard_setup_advan_mode_title", "wizard_setup_advan_mode_title"},  // 66
    {"err_version_server", "err_version_server"},  // 67
    {"main_queue_preparing", "main_queue_preparing"},  // 68
    {"sync_direction_mismatch", "sync_direction_mismatch"},  // 69
    {"msi_button_back", "msi_button_back"},  // 70
    {"btn_resume", "btn_resume"},  // 71
    {"wizard_summary_title", "wizard_summary_title"},  // 72
    {"err_ip_not_allowed", "err_ip_not_allowed"},  // 73
    {"selective_sync_loading", "selective_sync_loading"},  // 74
    {"tray_syncing_file_cnt", "tray_syncing_file_cnt"},  // 75
    {"status_desc_diskfull", "status_desc_diskfull"},  // 76
    {"main_queue_completed", "main_queue_completed"},  // 77
    {"tray_about", "tray_about"},  // 78
    {"msg_localdiskfull", "msg_localdiskfull"},  // 79
    {"context_menu_filter_folder", "context_menu_filter_folder"},  // 80
    {"title_value", "title_value"},  // 81
    {"status_desc_localdisk_full", "status_desc_localdisk_full"},  // 82
    {"msi_button_no", "msi_button_no"},  // 83
    {"msg_unlinking", "msg_unlinking"},  // 84
    {"err_network", "err_network"},  // 85
    {"msi_exit_dlg_description", "msi_exit_dlg_description"},  // 86
    {"tray_click_to_update", "tray_click_to_update"},  // 87
    {"wizard_readonly_backup_desc", "wizard_readonly_backup_desc"},  // 88
    {"thursday", "thursday"},  // 89
    {"use_relaylink", "use_relaylink"},  // 90
    {"main_status_connecting", "main_status_connecting"},  // 91
    {"wizard_share_nonexist_sync_folder_warning", "wizard_share_nonexist_sync_folder_warning"},  // 92
    {"btn_edit_connection", "btn_edit_connection"},  // 93
    {"err_version_client", "err_version_client"},  // 94
    {"msi_ready_dlg_text", "msi_ready_dlg_text"},  // 95
    {"version", "version"},  // 96
    {"wizard_diskfull_sync_folder_warning", "wizard_diskfull_sync_folder_warning"},  // 97
    {"err_autoconn_ctrl", "err_autoconn_ctrl"},  // 98
    {"err_share_not_mounted", "err_share_not_mounted"},  // 99
    {"msg_folder_not_empty", "msg_folder_not_empty"},  // 100
    {"err_pnx_share_link", "err_pnx_share_link"},  // 101
    {"status_desc_quotafull", "status_desc_quotafull"},  // 102
    {"history_rename", "history_rename"},  // 103
    {"col_file_name", "col_file_name"},  // 104
    {"black_list_btn", "black_list_btn"},  // 105
    {"err_database", "err_database"},  // 106
    {"msi_readyrepair_dlg_description", "msi_readyrepair_dlg_description"},  // 107
    {"connection_enter_otp", "connection_enter_otp"},  // 108
    {"manage_share_tab_name", "manage_share_tab_name"},  // 109
    {"title_ip", "title_ip"},  // 110
    {"management_proxy_cancel_btn", "management_proxy_cancel_btn"},  // 111
    {"monday", "monday"},  // 112
    {"desc_cannot_list_version", "desc_cannot_list_version"},  // 113
    {"wizard_user_disable_sync_folder_warning", "wizard_user_disable_sync_folder_warning"},  // 114
    {"msg_finish_way", "msg_finish_way"},  // 115
    {"err_max_tries", "err_max_tries"},  // 116
    {"tutorial_first_desc", "tutorial_first_desc"},  // 117
    {"msi_button_repair", "msi_button_repair"},  // 118
    {"msi_maintenance_dlg_remove_label", "msi_maintenance_dlg_remove_label"},  // 119
    {"notify_abnormal_short", "notify_abnormal_short"},  // 120
    {"msi_ready_dlg_subtitle", "msi_ready_dlg_subtitle"},  // 121
    {"wizard_summary_desc", "wizard_summary_desc"},  // 122
    {"NSIS_NOT_ADMIN_CONFIRM", "NSIS_NOT_ADMIN_CONFIRM"},  // 123
    {"tray_management_page", "tray_management_page"},  // 124
    {"btn_help", "btn_help"},  // 125
    {"sunday", "sunday"},  // 126
    {"msg_finish", "msg_finish"},  // 127
    {"pause_connection", "pause_connection"},  // 128
    {"wizard_setup_repeat_warning", "wizard_setup_repeat_warning"},  // 129
    {"msi_maintenance_dlg_subtitle", "msi_maintenance_dlg_subtitle"},  // 130
    {"err_hb_change", "err_hb_change"},  // 131
    {"main_sync_task", "main_sync_task"},  // 132
    {"err_pnxdisable", "err_pnxdisable"},  // 133
    {"desc_inactive", "desc_inactive"},  // 134
    {"title_conn_mode", "title_conn_mode"},  // 135
    {"wizard_setup_advan_mode_desc", "wizard_setup_advan_mode_desc"},  // 136
    {"quick_mode_finish_page_more_detail", "quick_mode_finish_page_more_detail"},  // 137
    {"err_ssl_change", "err_ssl_change"},  // 138
    {"err_disconn", "err_disconn"},  // 139
    {"history_action", "history_action"},  // 140
    {"connection_unlinking", "connection_unlinking"},  // 141
    {"month_mar", "month_mar"},  // 142
    {"tooltip_folder_indexing", "tooltip_folder_indexing"},  // 143
    {"advanced_settings", "advanced_settings"},  // 144
    {"status_desc_linking", "status_desc_linking"},  // 145
    {"manage_proxy_server_port", "manage_proxy_server_port"},  // 146
    {"title_upgrade", "title_upgrade"},  // 147
    {"black_list_desc", "black_list_desc"},  // 148
    {"btn_apply", "btn_apply"},  // 149
    {"backup_chooser_destination", "backup_chooser_destination"},  // 150
    {"wizard_setup_quick_mode_desc", "wizard_setup_quick_mode_desc"},  // 151
    {"wizard_system_err_sync_folder_warning", "wizard_system_err_sync_folder_warning"},  // 152
    {"selective_sync_direction_title", "selective_sync_direction_title"},  // 153
    {"msi_maintenance_welcome_dlg_subtitle", "msi_maintenance_welcome_dlg_subtitle"},  // 154
    {"wizard_set_sync_folder_desc", "wizard_set_sync_folder_desc"},  // 155
    {"msi_fatalerror_dlg_description1", "msi_fatalerror_dlg_description1"},  // 156
    {"file_max_size_label", "file_max_size_label"},  // 157
    {"msi_filesinuse_dlg_description", "msi_filesinuse_dlg_description"},  // 158
    {"msi_maintenance_dlg_repair_tooltip", "msi_maintenance_dlg_repair_tooltip"},  // 159
    {"msi_ready_dlg_title", "msi_ready_dlg_title"},  // 160
    {"setting_proxy_port", "setting_proxy_port"},  // 161
    {"setting_filter_max_size", "setting_filter_max_size"},  // 162
    {"setting_option_language_title", "setting_option_language_title"},  // 163
    {"msi_maintenance_dlg_repair_label", "msi_maintenance_dlg_repair_label"},  // 164
    {"title_chart_local", "title_chart_local"},  // 165
    {"col_file_status", "col_file_status"},  // 166
    {"col_file_size", "col_file_size"},  // 167
    {"main_queue_progress", "main_queue_progress"},  // 168
    {"last_page", "last_page"},  // 169
    {"msg_linking", "msg_linking"},  // 170
    {"err_otp_enforced", "err_otp_enforced"},  // 171
    {"file_selective_sync", "file_selective_sync"},  // 172
    {"msi_maintenance_dlg_remove_tooltip", "msi_maintenance_dlg_remove_tooltip"},  // 173
    {"tray_current_syncing", "tray_current_syncing"},  // 174
    {"setting_proxy_password", "setting_proxy_password"},  // 175
    {"manage_option_enable_startup", "manage_option_enable_startup"},  // 176
    {"wizard_welcome_info", "wizard_welcome_info"},  // 177
    {"share_enabled", "share_enabled"},  // 178
    {"err_share_fail_enable", "err_share_fail_enable"},  // 179
    {"conn_mode_direct", "conn_mode_direct"},  // 180
    {"title_ssl_enable", "title_ssl_enable"},  // 181
    {"history_to", "history_to"},  // 182
    {"status_desc_auth_short", "status_desc_auth_short"},  // 183
    {"msg_info", "msg_info"},  // 184
    {"open_file", "open_file"},  // 185
    {"month_sep", "month_sep"},  // 186
    {"msi_maintenance_dlg_change_text_disabled", "msi_maintenance_dlg_change_text_disabled"},  // 187
    {"next_x_pages", "next_x_pages"},  // 188
    {"wizard_setup_mode_page_desc", "wizard_setup_mode_page_desc"},  // 189
    {"session_resume_btn", "session_resume_btn"},  // 190
    {"manage_share_title", "manage_share_title"},  // 191
    {"conflict_policy_desc", "conflict_policy_desc"},  // 192
    {"error_zero_version", "error_zero_version"},  // 193
    {"month_apr", "month_apr"},  // 194
    {"msi_button_retry", "msi_button_retry"},  // 195
    {"btn_select", "btn_select"},  // 196
    {"tutorial_second_desc", "tutorial_second_desc"},  // 197
    {"btn_manage", "btn_manage"},  // 198
    {"backup_chooser_choose_source", "backup_chooser_choose_source"},  // 199
    {"manage_option_language", "manage_option_language"},  // 200
    {"file_black_list_label", "file_black_list_label"},  // 201
    {"connection_unlink_confirm", "connection_unlink_confirm"},  // 202
    {"open_contain_folder", "open_contain_folder"},  // 203
    {"msi_fatalerror_dlg_subtitle", "msi_fatalerror_dlg_subtitle"},  // 204
    {"wizard_ssl_verify_fail_sync_folder_warning", "wizard_ssl_verify_fail_sync_folder_warning"},  // 205
    {"manage_proxy_title", "manage_proxy_title"},  // 206
    {"btn_ok", "btn_ok"},  // 207
    {"tutorial_second_title", "tutorial_second_title"},  // 208
    {"msi_maintenance_dlg_remove_text", "msi_maintenance_dlg_remove_text"},  // 209
    {"wizard_invalid_sync_folder_warning", "wizard_invalid_sync_folder_warning"},  // 210
    {"selective_sync_folder_title", "selective_sync_folder_title"},  // 211
    {"notify_new_share", "notify_new_share"},  // 212
    {"msg_disabled", "msg_disabled"},  // 213
    {"wizard_setup_repeat_warning2", "wizard_setup_repeat_warning2"},  // 214
    {"msi_readyremove_dlg_text", "msi_readyremove_dlg_text"},  // 215
    {"update_pkg_for_selective_sync", "update_pkg_for_selective_sync"},  // 216
    {"setting_option_language_default", "setting_option_language_default"},  // 217
    {"manage_option_enable_ssl", "manage_option_enable_ssl"},  // 218
    {"btn_start_now", "btn_start_now"},  // 219
    {"advan_setup_wizard", "advan_setup_wizard"},  // 220
    {"manage_share_change_folder", "manage_share_change_folder"},  // 221
    {"wizard_setsyncfolder_title", "wizard_setsyncfolder_title"},  // 222
    {"setting_filter_zero_desc", "setting_filter_zero_desc"},  // 223
    {"status_desc_errversion_client", "status_desc_errversion_client"},  // 224
    {"msi_button_print", "msi_button_print"},  // 225
    {"history_keyword", "history_keyword"},  // 226
    {"one_way_sync_download", "one_way_sync_download"},  // 227
    {"open_sync_status", "open_sync_status"},  // 228
    {"btn_advanced", "btn_advanced"},  // 229
    {"setting_filter_ignore_local_delete", "setting_filter_ignore_local_delete"},  // 230
    {"treedialog_server_desc", "treedialog_server_desc"},  // 231
    {"wizard_summary_table_local_title", "wizard_summary_table_local_title"},  // 232
    {"setting_tab_connection", "setting_tab_connection"},  // 233
    {"setting_option_start_upon_login", "setting_option_start_upon_login"},  // 234
    {"history_search", "history_search"},  // 235
    {"msg_download_done", "msg_download_done"},  // 236
    {"setting_proxy_ip", "setting_proxy_ip"},  // 237
    {"msi_readyrepair_dlg_text", "msi_readyrepair_dlg_text"},  // 238
    {"month_nov", "month_nov"},  // 239
    {"wizard_welcome_help", "wizard_welcome_help"},  // 240
    {"msi_filesinuse_dlg_text", "msi_filesinuse_dlg_text"},  // 241
    {"manage_proxy_chk_sys_proxy", "manage_proxy_chk_sys_proxy"},  // 242
    {"msi_filesinuse_dlg_title", "msi_filesinuse_dlg_title"},  // 243
    {"msi_eula_dlg_reject", "msi_eula_dlg_reject"},  // 244
    {"err_ssl_verify_fail", "err_ssl_verify_fail"},  // 245
    {"msg_catchevent", "msg_catchevent"},  // 246
    {"backup_chooser_no_folder_selected", "backup_chooser_no_folder_selected"},  // 247
    {"wizard_new_sync_folder_desc", "wizard_new_sync_folder_desc"},  // 248
    {"title_ip_detail", "title_ip_detail"},  // 249
    {"msi_welcome_dlg_title", "msi_welcome_dlg_title"},  // 250
    {"msi_maintenance_dlg_description", "msi_maintenance_dlg_description"},  // 251
    {"msg_test_username_fail", "msg_test_username_fail"},  // 252
    {"err_autoconn_invalidid", "err_autoconn_invalidid"},  // 253
    {"err_common", "err_common"},  // 254
    {"tutorial_first_title", "tutorial_first_title"},  // 255
    {"context_menu_sendto_prefix", "context_menu_sendto_prefix"},  // 256
    {"msi_eula_dlg_description", "msi_eula_dlg_description"},  // 257
    {"msg_confirm_unlink", "msg_confirm_unlink"},  // 258
    {"tutorial_third_title", "tutorial_third_title"},  // 259
    {"tutorial_third_desc_2", "tutorial_third_desc_2"},  // 260
    {"err_relaylink_file_sharing", "err_relaylink_file_sharing"},  // 261
    {"msg_network_drive_watch", "msg_network_drive_watch"},  // 262
    {"btn_pause", "btn_pause"},  // 263
    {"main_desc_processing_count", "main_desc_processing_count"},  // 264
    {"msg_seldir", "msg_seldir"},  // 265
    {"btn_wizard_readonly_no", "btn_wizard_readonly_no"},  // 266
    {"conn_mode_reading", "conn_mode_reading"},  // 267
    {"backup_chooser_desc", "backup_chooser_desc"},  // 268
    {"hb_overview", "hb_overview"},  // 269
    {"setting_proxy_err_ipport_empty", "setting_proxy_err_ipport_empty"},  // 270
    {"btn_ssl_continue", "btn_ssl_continue"},  // 271
    {"manage_share_local_syncfolder", "manage_share_local_syncfolder"},  // 272
    {"label_locked_file", "label_locked_file"},  // 273
    {"msi_maintenance_dlg_title", "msi_maintenance_dlg_title"},  // 274
    {"title_standby", "title_standby"},  // 275
    {"manage_proxy_chk_no_proxy", "manage_proxy_chk_no_proxy"},  // 276
    {"tray_resume", "tray_resume"},  // 277
    {"tray_relink", "tray_relink"},  // 278
    {"loading", "loading"},  // 279
    {"msi_maintenance_welcome_dlg_title", "msi_maintenance_welcome_dlg_title"},  // 280
    {"msi_cancel_dlg_text", "msi_cancel_dlg_text"},  // 281
    {"err_link_same_hb", "err_link_same_hb"},  // 282
    {"context_menu_share_link", "context_menu_share_link"},  // 283
    {"msg_about", "msg_about"},  // 284
    {"yes", "yes"},  // 285
    {"err_auth", "err_auth"},  // 286
    {"msg_shareitem_delete", "msg_shareitem_delete"},  // 287
    {"wizard_welcome_footer_info", "wizard_welcome_footer_info"},  // 288
    {"err_shareitem_delete", "err_shareitem_delete"},  // 289
    {"msg_sub_slogan", "msg_sub_slogan"},  // 290
    {"tray_help", "tray_help"},  // 291
    {"status_desc_syncing", "status_desc_syncing"},  // 292
    {"context_menu_filter_folders", "context_menu_filter_folders"},  // 293
    {"recently_changed_title", "recently_changed_title"},  // 294
    {"tray_unstable", "tray_unstable"},  // 295
    {"notify_abnormal", "notify_abnormal"},  // 296
    {"msi_welcome_dlg_description", "msi_welcome_dlg_description"},  // 297
    {"manage_option_title", "manage_option_title"},  // 298
    {"msi_eula_dlg_subtitle", "msi_eula_dlg_subtitle"},  // 299
    {"session_pause_btn", "session_pause_btn"},  // 300
    {"title_chart_tray", "title_chart_tray"},  // 301
    {"selective_sync", "selective_sync"},  // 302
    {"context_menu_version_browse", "context_menu_version_browse"},  // 303
    {"title_bubble_sharing", "title_bubble_sharing"},  // 304
    {"main_settings", "main_settings"},  // 305
    {"time_day_ago", "time_day_ago"},  // 306
    {"language_default", "language_default"},  // 307
    {"err_otp_invalid", "err_otp_invalid"},  // 308
    {"manage_proxy_label_username", "manage_proxy_label_username"},  // 309
    {"err_share_nonexist_short", "err_share_nonexist_short"},  // 310
    {"history_customize", "history_customize"},  // 311
    {"msg_folder_readonly", "msg_folder_readonly"},  // 312
    {"title_usr", "title_usr"},  // 313
    {"history_reset", "history_reset"},  // 314
    {"err_inval", "err_inval"},  // 315
    {"month_jun", "month_jun"},  // 316
    {"err_invalid", "err_invalid"},  // 317
    {"main_desc_last_upload", "main_desc_last_upload"},  // 318
    {"finish", "finish"},  // 319
    {"tray_status_paused", "tray_status_paused"},  // 320
    {"wizard_connection_setting_desc", "wizard_connection_setting_desc"},  // 321
    {"file_ext_label", "file_ext_label"},  // 322
    {"wizard_welcome_title", "wizard_welcome_title"},  // 323
    {"month_feb", "month_feb"},  // 324
    {"history_file", "history_file"},  // 325
    {"manage_option_merge_mode", "manage_option_merge_mode"},  // 326
    {"err_backup_fail", "err_backup_fail"},  // 327
    {"history_from", "history_from"},  // 328
    {"main_queue_waiting", "main_queue_waiting"},  // 329
    {"network_management_page_btn", "network_management_page_btn"},  // 330
    {"setting_filter_table_desc", "setting_filter_table_desc"},  // 331
    {"wizard_connection_desc", "wizard_connection_desc"},  // 332
    {"wizard_conflict_sync_folder_warning", "wizard_conflict_sync_folder_warning"},  // 333
    {"msi_cancel_dlg_title", "msi_cancel_dlg_title"},  // 334
    {"err_share_perm_short", "err_share_perm_short"},  // 335
    {"err_version_short", "err_version_short"},  // 336
    {"wizard_quotafull_sync_folder_warning", "wizard_quotafull_sync_folder_warning"},  // 337
    {"btn_next", "btn_next"},  // 338
    {"saturday", "saturday"},  // 339
    {"col_computer_name", "col_computer_name"},  // 340
    {"setting_proxy_err_invalid_port", "setting_proxy_err_invalid_port"},  // 341
    {"progress_preparing", "progress_preparing"},  // 342
    {"setting_filter_table_editor_tooltip", "setting_filter_table_editor_tooltip"},  // 343
    {"msi_fatalerror_dlg_title", "msi_fatalerror_dlg_title"},  // 344
    {"msi_readyrepair_dlg_subtitle", "msi_readyrepair_dlg_subtitle"},  // 345
    {"title_name", "title_name"},  // 346
    {"history_download", "history_download"},  // 347
    {"month_jul", "month_jul"},  // 348
    {"conflict_policy_overwrite_client", "conflict_policy_overwrite_client"},  // 349
    {"msg_checkpass", "msg_checkpass"},  // 350
    {"msi_maintenance_dlg_change_text", "msi_maintenance_dlg_change_text"},  // 351
    {"msg_test_connect", "msg_test_connect"},  // 352
    {"msi_progress_dlg_status_label", "msi_progress_dlg_status_label"},  // 353
    {"wizard_network_err_sync_folder_warning", "wizard_network_err_sync_folder_warning"},  // 354
    {"title_inactive", "title_inactive"},  // 355
    {"main_status_uptodate", "main_status_uptodate"},  // 356
    {"btn_unlink", "btn_unlink"},  // 357
    {"btn_done", "btn_done"},  // 358
    {"context_menu_resume_folders", "context_menu_resume_folders"},  // 359
    {"msi_button_ignore", "msi_button_ignore"},  // 360
    {"title_icon_double_clicked", "title_icon_double_clicked"},  // 361
    {"wizard_create_driftwell_folder", "wizard_create_driftwell_folder"},  // 362
    {"tray_opendir", "tray_opendir"},  // 363
    {"tuesday", "tuesday"},  // 364
    {"msi_exit_dlg_launch", "msi_exit_dlg_launch"},  // 365
    {"main_queue_column_progress", "main_queue_column_progress"},  // 366
    {"title_ssl_warning", "title_ssl_warning"},  // 367
    {"try_syncing", "try_syncing"},  // 368
    {"NSIS_DRIFTWELL_INSTALLED_CURRENT", "NSIS_DRIFTWELL_INSTALLED_CURRENT"},  // 369
    {"month_aug", "month_aug"},  // 370
    {"open_main_app", "open_main_app"},  // 371
    {"del", "del"},  // 372
    {"msg_connectsucc", "msg_connectsucc"},  // 373
    {"manage_proxy_chk_account", "manage_proxy_chk_account"},  // 374
    {"msi_maintenance_dlg_change_tooltip", "msi_maintenance_dlg_change_tooltip"},  // 375
    {"msi_filesinuse_dlg_text2", "msi_filesinuse_dlg_text2"},  // 376
    {"folder_selective_sync", "folder_selective_sync"},  // 377
    {"wizard_find_local_hb_tooltip", "wizard_find_local_hb_tooltip"},  // 378
    {"info_mergefolder", "info_mergefolder"},  // 379
    {"connection_password", "connection_password"},  // 380
    {"status_desc_uptodate", "status_desc_uptodate"},  // 381
    {"tray_uptodate", "tray_uptodate"},  // 382
    {"tutorial_fourth_desc", "tutorial_fourth_desc"},  // 383
    {"label_downloading", "label_downloading"},  // 384
    {"msg_startup", "msg_startup"},  // 385
    {"month_dec", "month_dec"},  // 386
    {"title_changefolder", "title_changefolder"},  // 387
    {"col_file_destination", "col_file_destination"},  // 388
    {"err_invalid_port_number", "err_invalid_port_number"},  // 389
    {"setting_proxy_sys_proxy", "setting_proxy_sys_proxy"},  // 390
    {"btn_back", "btn_back"},  // 391
    {"main_status_error", "main_status_error"},  // 392
    {"setting_tab_option", "setting_tab_option"},  // 393
    {"err_share_mountpt_short", "err_share_mountpt_short"},  // 394
    {"read_only", "read_only"},  // 395
    {"quick_mode_finish_page_title", "quick_mode_finish_page_title"},  // 396
    {"msi_button_ok", "msi_button_ok"},  // 397
    {"manage_share_status", "manage_share_status"},  // 398
    {"status_desc_errversion_server", "status_desc_errversion_server"},  // 399
    {"manage_setting_not_save", "manage_setting_not_save"},  // 400
    {"setting_proxy_no_proxy", "setting_proxy_no_proxy"},  // 401
    {"tray_main_app", "tray_main_app"},  // 402
    {"manage_share_enable", "manage_share_enable"},  // 403
    {"wizard_welcome_desc", "wizard_welcome_desc"},  // 404
    {"msg_mergefolder", "msg_mergefolder"},  // 405
    {"session_unlink_confirm_msg", "session_unlink_confirm_msg"},  // 406
    {"msi_button_finish", "msi_button_finish"},  // 407
    {"conn_mode_wan", "conn_mode_wan"},  // 408
    {"setting_filter_table_title", "setting_filter_table_title"},  // 409
    {"status_desc_perm_short", "status_desc_perm_short"},  // 410
    {"history_time", "history_time"},  // 411
    {"history_upload", "history_upload"},  // 412
    {"conn_mode_lan", "conn_mode_lan"},  // 413
    {"wizard_set_sync_folder_title", "wizard_set_sync_folder_title"},  // 414
    {"setting_filter_point_prefix", "setting_filter_point_prefix"},  // 415
    {"status_desc_abnormal_short", "status_desc_abnormal_short"},  // 416
    {"msi_readyremove_dlg_subtitle", "msi_readyremove_dlg_subtitle"},  // 417
    {"msg_info_description", "msg_info_description"},  // 418
    {"tutorial_third_desc", "tutorial_third_desc"},  // 419
    {"block_file_name_label", "block_file_name_label"},  // 420
    {"wizard_summary_table_path", "wizard_summary_table_path"},  // 421
    {"history_file_type", "history_file_type"},  // 422
    {"manage_proxy_chk_manual", "manage_proxy_chk_manual"},  // 423
    {"err_pnxdisable_short", "err_pnxdisable_short"},  // 424
    {"err_abnormal", "err_abnormal"},  // 425
    {"msi_readyremove_dlg_description", "msi_readyremove_dlg_description"},  // 426
    {"setting_tab_proxy", "setting_tab_proxy"},  // 427
    {"context_menu_resume_folder", "context_menu_resume_folder"},  // 428
    {"msi_exit_dlg_title", "msi_exit_dlg_title"},  // 429
    {"msi_button_remove", "msi_button_remove"},  // 430
    {"wizard_summary_table_server", "wizard_summary_table_server"},  // 431
    {"got_it", "got_it"},  // 432
    {"time_just_now", "time_just_now"},  // 433
    {"main_queue_locking", "main_queue_locking"},  // 434
    {"wizard_setsyncfolder_desc", "wizard_setsyncfolder_desc"},  // 435
    {"msg_download_downloading", "msg_download_downloading"},  // 436
    {"btn_choseother", "btn_choseother"},  // 437
    {"msi_fatalerror_dlg_description2", "msi_fatalerror_dlg_description2"},  // 438
    {"wizard_connection_title", "wizard_connection_title"},  // 439
    {"err_share_limit", "err_share_limit"},  // 440
    {"main_queue_uploading", "main_queue_uploading"},  // 441
    {"session_add_btn", "session_add_btn"},  // 442
    {"msi_button_next", "msi_button_next"},  // 443
    {"manage_option_show_filtered_icons", "manage_option_show_filtered_icons"},  // 444
    {"manage_proxy_tab_name", "manage_proxy_tab_name"},  // 445
    {"prev_x_pages", "prev_x_pages"},  // 446
    {"msi_progress_dlg_subtitle", "msi_progress_dlg_subtitle"},  // 447
    {"history_file_name", "history_file_name"},  // 448
    {"tray_exit", "tray_exit"},  // 449
    {"session_unlink_btn", "session_unlink_btn"},  // 450
    {"no_need", "no_need"},  // 451
    {"msg_enabled", "msg_enabled"},  // 452
    {"app_name", "Driftwell Backup"},  // 453
    {"msg_diskfull", "msg_diskfull"},  // 454
    {"add", "add"},  // 455
    {"manage_setting_no_change", "manage_setting_no_change"},  // 456
    {"label_preparing", "label_preparing"},  // 457
    {"two_way_sync", "two_way_sync"},  // 458
    {"wednesday", "wednesday"},  // 459
    {"col_create_time", "col_create_time"},  // 460
    {"desc_cannot_share_link", "desc_cannot_share_link"},  // 461
    {"setting_proxy_err_empty_username", "setting_proxy_err_empty_username"},  // 462
    {"connection_use_relaylink", "connection_use_relaylink"},  // 463
    {"history_last_month", "history_last_month"},  // 464
    {"manage_share_loading", "manage_share_loading"},  // 465
    {"err_short", "err_short"},  // 466
    {"notify_new_share_short", "notify_new_share_short"},  // 467
    {"wizard_set_sync_folder", "wizard_set_sync_folder"},  // 468
    {"msi_maintenance_welcome_dlg_description", "msi_maintenance_welcome_dlg_description"},  // 469
    {"conflict_policy_rename_conflict", "conflict_policy_rename_conflict"},  // 470
    {"main_status_pause", "main_status_pause"},  // 471
    {"msi_eula_dlg_accept", "msi_eula_dlg_accept"},  // 472
    {"month_oct", "month_oct"},  // 473
    {"month_may", "month_may"},  // 474
    {"tutorial_fourth_title", "tutorial_fourth_title"},  // 475
    {"msg_running", "msg_running"},  // 476
    {"msi_ready_dlg_description", "msi_ready_dlg_description"},  // 477
    {"file_max_size_limit", "file_max_size_limit"},  // 478
    {"msi_userexit_dlg_title", "msi_userexit_dlg_title"},  // 479
    {"tray_setinfo", "tray_setinfo"},  // 480
    {"manage_proxy_server_ip", "manage_proxy_server_ip"},  // 481
    {"tutorial_second_desc_2", "tutorial_second_desc_2"},  // 482
    {"wizard_sync_folder_new_nas", "wizard_sync_folder_new_nas"},  // 483
    {"manage_setting_applying", "manage_setting_applying"},  // 484
    {"err_user_name_empty", "err_user_name_empty"},  // 485
    {"quick_mode_finish_page_desc", "quick_mode_finish_page_desc"},  // 486
    {"manage_share_name", "manage_share_name"},  // 487
    {"manage_option_enable_desktop_notify", "manage_option_enable_desktop_notify"},  // 488
    {"wizard_welcome_mask_desc", "wizard_welcome_mask_desc"},  // 489
    {"setting_tab_filter", "setting_tab_filter"},  // 490
    {"tray_hb_change", "tray_hb_change"},  // 491
    {"action_unlink", "action_unlink"},  // 492
    {"setting_tab_folder", "setting_tab_folder"},  // 493
    {"main_queue_title", "main_queue_title"},  // 494
    {"folder_name", "folder_name"},  // 495
    {"wizard_setup_mode_page_title", "wizard_setup_mode_page_title"},  // 496
    {"connection_username", "connection_username"},  // 497
    {"err_init_failed", "err_init_failed"},  // 498
    {"msi_maintenance_dlg_repair_text", "msi_maintenance_dlg_repair_text"},  // 499
    {"history_date_range", "history_date_range"},  // 500
    {"tray_pause", "tray_pause"},  // 501
    {"tray_upgrade", "tray_upgrade"},  // 502
    {"msg_summary", "msg_summary"},  // 503
    {"link_new_nas", "link_new_nas"},  // 504
    {"label_uploading", "label_uploading"},  // 505
    {"btn_cancel", "btn_cancel"},  // 506
    {"msi_exit_dlg_text", "msi_exit_dlg_text"},  // 507
    {"btn_merge", "btn_merge"},  // 508
    {"manage_sync_tab_name", "manage_sync_tab_name"},  // 509
    {"msi_exit_dlg_subtitle", "msi_exit_dlg_subtitle"},  // 510
    {"err_share_perm", "err_share_perm"},  // 511
    {"msi_button_exit", "msi_button_exit"},  // 512
    {"msg_share_bubble_suffix", "msg_share_bubble_suffix"},  // 513
    {"title_status_info", "title_status_info"},  // 514
    {"setting_proxy_username", "setting_proxy_username"},  // 515
    {"manage_proxy_label_password", "manage_proxy_label_password"},  // 516
    {"col_time", "col_time"},  // 517
    {"manage_option_synchronization_mode", "manage_option_synchronization_mode"},  // 518
    {"title_folder_readonly", "title_folder_readonly"},  // 519
    {"err_hb_not_match", "err_hb_not_match"},  // 520
    {"btn_proxy", "btn_proxy"},  // 521
    {"open_folder", "open_folder"},  // 522
    {"msg_error", "msg_error"},  // 523
    {"desc_cannot_download", "desc_cannot_download"},  // 524
    {"block_point_prefix", "block_point_prefix"},  // 525
    {"block_file_table_title", "block_file_table_title"},  // 526
    {"title_welcome", "title_welcome"},  // 527
    {"err_proxy_ipport_empty", "err_proxy_ipport_empty"},  // 528
    {"NSIS_DRIFTWELL_INSTALLED_NEWER", "NSIS_DRIFTWELL_INSTALLED_NEWER"},  // 529
    {"treedialog_pc_title", "treedialog_pc_title"},  // 530
    {"msg_progress", "msg_progress"},  // 531
    {"err_quotafull", "err_quotafull"},  // 532
    {"col_file_action", "col_file_action"},  // 533
    {"msi_filesinuse_dlg_closeall", "msi_filesinuse_dlg_closeall"},  // 534
    {"history_folder", "history_folder"},  // 535
    {"err_local_sync_folder_miss", "err_local_sync_folder_miss"},  // 536
    {"status_desc_version_short", "status_desc_version_short"},  // 537
    {"msi_progress_dlg_text", "msi_progress_dlg_text"},  // 538
    {"dont_show_msg", "dont_show_msg"},  // 539
    {"status_desc_hb_changed", "status_desc_hb_changed"},  // 540
    {"download_only", "download_only"},  // 541
    {"conflict_dropbox", "conflict_dropbox"},  // 542
    {"connection_ssl", "connection_ssl"},  // 543
    {"manage_option_tab_name", "manage_option_tab_name"},  // 544
    {"setting_proxy_manual", "setting_proxy_manual"},  // 545
    {"btn_shareitem_delete", "btn_shareitem_delete"},  // 546
    {"err_diskfull", "err_diskfull"},  // 547
    {"today", "today"},  // 548
    {"management_proxy_apply_btn", "management_proxy_apply_btn"},  // 549
    {"files_update", "files_update"},  // 550
    {"main_download_history", "main_download_history"},  // 551
    {"msg_quotafull", "msg_quotafull"},  // 552
    {"time_hour_ago", "time_hour_ago"},  // 553
    {"no_valid_folder", "no_valid_folder"},  // 554
    {"err_conflict", "err_conflict"},  // 555
    {"history_yesterday", "history_yesterday"},  // 556
    {"msi_readyremove_dlg_title", "msi_readyremove_dlg_title"},  // 557
    {"msg_language_restart", "msg_language_restart"},  // 558
    {"wizard_setup_repeat_warning_title", "wizard_setup_repeat_warning_title"},  // 559
    {"tray_updating", "tray_updating"},  // 560
    {"msi_eula_dlg_title", "msi_eula_dlg_title"},  // 561
    {"wizard_summary_table_remote_title", "wizard_summary_table_remote_title"},  // 562
    {"msg_folder_mount_point", "msg_folder_mount_point"},  // 563
    {"title_folderpath", "title_folderpath"},  // 564
    {"msi_filesinuse_dlg_subtitle", "msi_filesinuse_dlg_subtitle"},  // 565
    {"history_no_data", "history_no_data"},  // 566
    {"read_only_tooltip", "read_only_tooltip"},  // 567
    {"history_page_title", "history_page_title"},  // 568
    {"wizard_readonly_sync_folder_warning", "wizard_readonly_sync_folder_warning"},  // 569
    {"manage_option_sync_mode", "manage_option_sync_mode"},  // 570
    {"manage_option_use_black_white_icon", "manage_option_use_black_white_icon"},  // 571
    {"wizard_setup_quick_mode_title", "wizard_setup_quick_mode_title"},  // 572
    {"title_folder_nonempty", "title_folder_nonempty"},  // 573
    {"msg_ssl_change", "msg_ssl_change"},  // 574
    {"setting_option_language_restart", "setting_option_language_restart"},  // 575
    {"err_full_short", "err_full_short"},  // 576
    {"time_minute_ago", "time_minute_ago"},  // 577
    {"err_otp_required", "err_otp_required"},  // 578
    {"wizard_access_deny_sync_folder_warning", "wizard_access_deny_sync_folder_warning"},  // 579
    {"wizard_new_sync_folder_title", "wizard_new_sync_folder_title"},  // 580
    {"btn_continue", "btn_continue"},  // 581
    {"block_file_name_tool_tip", "block_file_name_tool_tip"},  // 582
    {"tray_data_checking", "tray_data_checking"},  // 583
    {"msi_progress_dlg_description", "msi_progress_dlg_description"},  // 584
    {"conflict_policy_compare_mtime", "conflict_policy_compare_mtime"},  // 585
    {"msi_button_install", "msi_button_install"},  // 586
    {"err_share_folder_conflict", "err_share_folder_conflict"},  // 587
    {"msg_slogan", "msg_slogan"},  // 588
    {"local_hb_search", "local_hb_search"},  // 589
    {"setting_proxy_auth", "setting_proxy_auth"},  // 590
    {"btn_wizard_readonly_yes", "btn_wizard_readonly_yes"},  // 591
    {"wizard_welcome_slogan", "wizard_welcome_slogan"},  // 592
    {"err_remote_not_mounted", "err_remote_not_mounted"},  // 593
    {"wizard_finish_pairing_desc", "wizard_finish_pairing_desc"},  // 594
    {"msi_readyrepair_dlg_title", "msi_readyrepair_dlg_title"},  // 595
    {"msi_userexit_dlg_description2", "msi_userexit_dlg_description2"},  // 596
    {"err_no_valid_folder", "err_no_valid_folder"},  // 597
    {"wizard_setup_repeat_warning_desc", "wizard_setup_repeat_warning_desc"},  // 598
    {"btn_settings", "btn_settings"},  // 599
};

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
static_assert(sameKey(kRows[16].key, "desc_dwel_env_preparation_done") && sameKey(kRows[54].key, "desc_dwel_env_preparing")
                  && sameKey(kRows[453].key, "app_name"),
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
