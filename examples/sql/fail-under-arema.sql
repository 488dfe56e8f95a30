-- The bridges that fail under AREMA, the worst first.
SELECT project, title, dc, "limit"
FROM projects
WHERE code = 'AREMA' AND NOT passes
ORDER BY dc DESC, project;
