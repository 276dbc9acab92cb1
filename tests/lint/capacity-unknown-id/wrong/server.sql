INSERT INTO device_type (position, name, version, type_id, version_id, config_file_type, sys_oid,
                         support_upgrade, support_capacity, capacity_per_version) VALUES
  (1, 'EX 200', 'V2', 2, 1, 1, '1.3.6.1.4.1.32473.2', 1, 1, 1);
INSERT INTO version_in_service (position, device_type, device_type_version, soft_version, patch_version) VALUES
  (1, 'EX 200', 'V2', 'V2.1', '');
INSERT INTO capacity (position, device_type, device_type_version, soft_version, patch_version, full_config) VALUES
  (1, 'EX 200', 'V2', 'V2.1', '', 0);
