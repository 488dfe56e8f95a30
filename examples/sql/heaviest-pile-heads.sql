-- The most compressed pile head of each bridge: the load to compare with the driven capacity. Compression is negative.
SELECT a.project, a.substructure, a.pile, min(a.compression) AS compression, u.unit, a.compression_limit_state AS limit_state
FROM pile_axial AS a
JOIN units AS u ON u.table_name = 'pile_axial' AND u.column_name = 'compression'
GROUP BY a.project
HAVING min(a.compression) IS NOT NULL
ORDER BY compression, a.project;
