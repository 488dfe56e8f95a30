-- Verdicts that do not hold: the data have errors, cases of the analysis did not converge, or there is none.
SELECT p.project, p.errors, p.cases - p.converged AS not_converged, f.code AS first_error, f.file, f.text
FROM projects AS p
LEFT JOIN findings AS f ON f.project = p.project
    AND f.finding = (SELECT min(g.finding) FROM findings AS g WHERE g.project = p.project AND g.severity = 'error')
WHERE p.errors > 0 OR p.converged < p.cases OR p.passes IS NULL
ORDER BY p.errors DESC, not_converged DESC, p.project;
